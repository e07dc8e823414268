#include "fs-platform.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>

namespace fs_platform {
namespace {

static_assert(PATH_MAX <= kPathBufferSize, "realpath may write PATH_MAX bytes");

struct MagicName {
    unsigned long magic;
    const char* name;
};

// Linux tells file systems apart by magic number; callers expect the names
// macOS uses. Linux has no AFP client, so "afpfs" never appears.
const MagicName kKnownFileSystems[] = {
    {NFS_SUPER_MAGIC, "nfs"},    {SMB_SUPER_MAGIC, "smbfs"},   {CIFS_SUPER_MAGIC, "smbfs"},
    {SMB2_SUPER_MAGIC, "smbfs"}, {MSDOS_SUPER_MAGIC, "msdos"},
};

const char* NameOfMagic(unsigned long magic)
{
    for (const MagicName& known : kKnownFileSystems) {
        if (known.magic == magic)
            return known.name;
    }
    return "";
}

}  // namespace

int canonical_path(const char* path, char* buf, ResolveStep* failed_step)
{
    // realpath does both steps at once; its failures count as the lookup.
    if (realpath(path, buf) == nullptr) {
        *failed_step = RESOLVE_LOOKUP;
        return errno != 0 ? errno : -1;
    }
    return 0;
}

int type_name(const char* path, std::string* name)
{
    struct statfs info;
    if (statfs(path, &info) != 0)
        return -1;
    // f_type is signed on some architectures; magic numbers are 32-bit.
    *name = NameOfMagic(static_cast<unsigned long>(info.f_type) & 0xFFFFFFFFUL);
    return 0;
}

int exchange(const char* path, const char* other)
{
    return renameat2(AT_FDCWD, path, AT_FDCWD, other, RENAME_EXCHANGE);
}

int sync_file_system(const char* path)
{
    const int fd = open(path, O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return -1;
    const int status = syncfs(fd);
    const int error = errno;
    close(fd);
    errno = error;
    return status;
}

}  // namespace fs_platform
