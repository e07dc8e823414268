#ifndef FS_PLATFORM_H
#define FS_PLATFORM_H

#include <cstddef>
#include <string>

// What the file-system layer needs from the operating system beyond POSIX:
// the canonical spelling of a path, the name of the file system under it,
// an atomic exchange of two paths and a sync of a whole file system.
namespace fs_platform {

// Size of the buffer that receives a canonical path.
const size_t kPathBufferSize = 4096;

// The two steps of resolving a path: finding the file, then spelling its path.
enum ResolveStep { RESOLVE_LOOKUP, RESOLVE_SPELLING };

// Writes the absolute path of an existing file into buf (kPathBufferSize
// bytes), with every symbolic link resolved and each name as stored.
// Returns 0, or a nonzero platform status with failed_step naming the step.
int canonical_path(const char* path, char* buf, ResolveStep* failed_step);

// Names the file system path lies on, in the macOS spelling ("nfs", "smbfs",
// "afpfs", "msdos", ...). Returns 0, or -1 with errno set.
int type_name(const char* path, std::string* name);

// Swaps what the two existing paths name, folders included, in one step
// that nothing can see half done. Returns 0, or -1 with errno set (EINVAL,
// ENOSYS or ENOTSUP where the file system cannot exchange).
int exchange(const char* path, const char* other);

// Writes everything cached for the file system holding path, file data and
// names alike, to its device. Returns 0, or -1 with errno set.
int sync_file_system(const char* path);

}  // namespace fs_platform

#endif  // FS_PLATFORM_H
