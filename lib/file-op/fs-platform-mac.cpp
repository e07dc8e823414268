#include "fs-platform.h"

#include <CoreServices/CoreServices.h>
#include <fcntl.h>
#include <stdio.h>
#include <sys/mount.h>
#include <sys/param.h>
#include <unistd.h>

// The file-reference calls are deprecated but still the only ones that spell
// a path exactly as the volume stores it.
#pragma clang diagnostic ignored "-Wdeprecated-declarations"

namespace fs_platform {

int canonical_path(const char* path, char* buf, ResolveStep* failed_step)
{
    FSRef ref;
    OSStatus status = FSPathMakeRef(reinterpret_cast<const UInt8*>(path), &ref, nullptr);
    if (status != noErr) {
        *failed_step = RESOLVE_LOOKUP;
        return status;
    }
    status = FSRefMakePath(&ref, reinterpret_cast<UInt8*>(buf), kPathBufferSize);
    if (status != noErr) {
        *failed_step = RESOLVE_SPELLING;
        return status;
    }
    return 0;
}

int type_name(const char* path, std::string* name)
{
    struct statfs info;
    if (statfs(path, &info) != 0)
        return -1;
    *name = info.f_fstypename;
    return 0;
}

int exchange(const char* path, const char* other)
{
    return renamex_np(path, other, RENAME_SWAP);
}

// macOS has no sync of one file system: sync() schedules every write, and
// F_FULLFSYNC waits until the drive holding path has them on its medium.
int sync_file_system(const char* path)
{
    sync();
    const int fd = open(path, O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return -1;
    const int status = fcntl(fd, F_FULLFSYNC);
    const int error = errno;
    close(fd);
    errno = error;
    return status;
}

}  // namespace fs_platform
