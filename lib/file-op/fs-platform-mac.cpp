#include "fs-platform.h"

#include <CoreServices/CoreServices.h>
#include <sys/mount.h>
#include <sys/param.h>

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

}  // namespace fs_platform
