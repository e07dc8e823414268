#ifndef FILE_OP_H
#define FILE_OP_H

#include <dirent.h>

#include <cstdint>

#include "ustring.h"

// The file-system layer: free functions over ustring paths that report their
// outcome as small integer codes and log failures under "file_op_debug".

// The codes. Callers that only need success or failure test for a negative one.
const int FS_OK = 0;
const int FS_ERROR = -1;           // a bad argument or a failed examination
const int FS_SOURCE_MISSING = -2;  // FSStat, FSRename: missing, or not to be examined
const int FS_DEVICE_FULL = -2;     // FSCopy
const int FS_NOT_CREATED = -2;     // FSMKDir
const int FS_STEP_FAILED = -3;     // a step of a multi-step move or delete
const int FS_NAME_TOO_LONG = -100;
// FSReadDir's results besides FS_ERROR.
const int FS_DIR_ENTRY = 1;
const int FS_DIR_END = 0;

// File type codes, from st_mode for _FILE_INFO_tag and from d_type for DIR_ENTRY.
const int32_t FILE_TYPE_UNKNOWN = 0;
const int32_t FILE_TYPE_REGULAR = 1;
const int32_t FILE_TYPE_DIRECTORY = 2;
const int32_t FILE_TYPE_SYMLINK = 3;
const int32_t FILE_TYPE_DEVICE = 5;
const int32_t FILE_TYPE_FIFO = 6;
const int32_t FILE_TYPE_SOCKET = 7;

// DIR_HANDLE flag: FSReadDir also fills each entry's mtime and size.
const int32_t FS_DIR_WITH_INFO = 1;

struct _FILE_INFO_tag {
    ustring path;   // canonical after GetFileInfo on an existing file
    ustring extra;  // set by no operation here; part of equality
    int32_t type = FILE_TYPE_UNKNOWN;
    int32_t mtime = 0;  // seconds since the epoch
    int64_t size = 0;
    bool exists = false;
    uint32_t uid = 0;
    uint32_t gid = 0;
    uint32_t mode = 0;  // st_mode, type and permission bits
};

// Equal when exists, size, mtime, type, path and extra match; owner and mode
// are ignored.
bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);
bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);

struct DIR_HANDLE {
    ustring path;
    int32_t flags = 0;
    DIR* dir = nullptr;  // null after FSCloseDir
};

struct DIR_ENTRY {
    ustring name;  // bare name, "." and ".." included
    int32_t type = FILE_TYPE_UNKNOWN;
    int32_t mtime = 0;  // 0 unless the handle has FS_DIR_WITH_INFO
    int64_t size = 0;
};

// Owner ids given to folders this layer creates; -1 (the default) means none.
void FSInitialize(unsigned uid, unsigned gid);
int FSInit(const ustring& path);
int FSChown(const ustring& path);

// With exact set, true only when path is already the file's canonical path
// (after NFC normalisation of both sides).
bool IsFileExist(const ustring& path, bool exact);
// Examines the entry itself, not a link's target. A missing path gives 0
// with a placeholder record (exists false, mtime now).
int GetFileInfo(const ustring& path, _FILE_INFO_tag& info);
// FS_OK with path made canonical, or FS_ERROR with path unchanged.
int FSGetRealPath(ustring& path);
// FS_OK (info.exists tells), FS_ERROR for an empty path, FS_SOURCE_MISSING
// when it exists but cannot be examined.
int FSStat(const ustring& path, _FILE_INFO_tag& info, bool exact);

// FS_OK, FS_ERROR or FS_DEVICE_FULL.
int FSCopy(const ustring& src, const ustring& dst, bool remove_src);
// FS_OK, FS_ERROR (empty argument), FS_SOURCE_MISSING, FS_STEP_FAILED or
// FS_NAME_TOO_LONG. Falls back to copying when src and dst lie on different
// file systems.
int FSRename(const ustring& src, const ustring& dst, bool exact);
// FS_OK, FS_ERROR or FS_NOT_CREATED.
int FSMKDir(const ustring& path, bool recursive);
// Creates every missing folder of path. mode 0xFFFF means 0777 under the
// umask; any other mode is applied exactly. FS_OK, or FS_ERROR with errno set.
// stop_at receives a pointer into path's text where the last handled
// component ends.
int FSMKDirP(const ustring& path, char** stop_at, bool replace_non_dirs, unsigned short mode);
// Recursive delete; links are removed, never followed. FS_OK, FS_ERROR or
// FS_STEP_FAILED.
int FSRemove(const ustring& path, bool flag);
// Swaps two existing paths in one atomic step. FS_OK, or FS_ERROR with errno
// set: EINVAL, ENOSYS or ENOTSUP where the file system cannot exchange.
int FSExchange(const ustring& path, const ustring& other);
// Makes everything written so far on the file system that holds path
// durable, names included. FS_OK or FS_ERROR.
int FSSync(const ustring& path);

int FSMktemp(const ustring& dir, ustring& out);
int FSCreateTempPath(const ustring& dir, ustring& out);
int FSUTime(const ustring& path, long atime, long mtime);

// Directory walk: FSReadDir gives FS_DIR_ENTRY, FS_DIR_END or FS_ERROR.
// FSCloseDir is called once after a successful FSOpenDir.
int FSOpenDir(const ustring& path, int flags, DIR_HANDLE& handle);
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);
void FSCloseDir(DIR_HANDLE& handle);

bool FSTimeEqual(long a, long b);
// True when access(path, mode) is refused for lack of permission.
bool isFileLocked(const ustring& path, int mode);
// True when path lies on a network file system.
bool isMountPoint(const ustring& path);
// True when path lies on a FAT file system.
bool IsMSDOS(const ustring& path);

#endif  // FILE_OP_H
