#include "file-op.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utime.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <functional>
#include <memory>
#include <string>

#include "fs-platform.h"
#include "log.h"
#include "tmp_name_gen.h"

#define LOG_COMPONENT "file_op_debug"
#define LOG_TAG "file-op"

namespace {

// One heap buffer per copy; large chunks keep cross-device moves of the
// package fast without holding the whole file.
const size_t kCopyBufferSize = 32 * 1024 * 1024;

const unsigned kNoId = static_cast<unsigned>(-1);
const unsigned short kDefaultFolderModeRequest = 0xFFFF;
const mode_t kDefaultFolderMode = 0777;
const mode_t kNewFileMode = 0666;
const mode_t kTempFileMode = 0644;
const uint32_t kStatModeBits = 0xFFFF;

// Owner of the folders this layer creates; written once at start-up.
unsigned uid = kNoId;
unsigned gid = kNoId;

using FreeDeleter = decltype(&free);

int32_t TypeFromMode(mode_t mode)
{
    switch (mode & S_IFMT) {
    case S_IFREG: return FILE_TYPE_REGULAR;
    case S_IFDIR: return FILE_TYPE_DIRECTORY;
    case S_IFLNK: return FILE_TYPE_SYMLINK;
    case S_IFCHR:
    case S_IFBLK: return FILE_TYPE_DEVICE;
    case S_IFIFO: return FILE_TYPE_FIFO;
    case S_IFSOCK: return FILE_TYPE_SOCKET;
    default: return -1;
    }
}

int32_t TypeFromDirentType(unsigned char d_type)
{
    switch (d_type) {
    case DT_REG: return FILE_TYPE_REGULAR;
    case DT_DIR: return FILE_TYPE_DIRECTORY;
    case DT_LNK: return FILE_TYPE_SYMLINK;
    case DT_CHR:
    case DT_BLK: return FILE_TYPE_DEVICE;
    case DT_FIFO: return FILE_TYPE_FIFO;
    case DT_SOCK: return FILE_TYPE_SOCKET;
    default: return FILE_TYPE_UNKNOWN;
    }
}

ustring ChildPath(const ustring& dir, const ustring& name)
{
    return dir + "/" + name;
}

bool IsDotEntry(const char* name)
{
    return strcmp(name, ".") == 0 || strcmp(name, "..") == 0;
}

void LogOpenDirFailure(const char* path, int error)
{
    LOG_MSG(ERROR, "FSOpenDir: Failed to open directory '%s'. %s", path, strerror(error));
}

void LogReadDirFailure(const char* path, int error)
{
    LOG_MSG(ERROR, "FSOpenDir: Failed to read directory '%s'. %s", path, strerror(error));
}

// Logs why the platform could not resolve a path, naming the step that failed.
void LogResolveFailure(fs_platform::ResolveStep step, int status)
{
    if (step == fs_platform::RESOLVE_LOOKUP)
        LOG_MSG(ERROR, "FSPathMakeRef: %d", status);
    else
        LOG_MSG(ERROR, "FSRefMakePath: %d", status);
}

// The exact half of IsFileExist: the path, in NFC, must already be the
// canonical path. on_disk is the spelling that reached the file.
bool IsCanonicalSpelling(const ustring& on_disk, const ustring& nfc_path)
{
    LOG_MSG(DEBUG, "Input file path = [%s].", nfc_path.c_str());
    char canonical[fs_platform::kPathBufferSize] = {};
    fs_platform::ResolveStep failed_step;
    const int status = fs_platform::canonical_path(on_disk.c_str(), canonical, &failed_step);
    if (status != 0) {
        LogResolveFailure(failed_step, status);
        return false;
    }
    const ustring nfc_canonical = ustring(canonical).normalize(ustring::NFC);
    LOG_MSG(DEBUG, "FSRefMakePath outTargetPath path = [%s].", nfc_canonical.c_str());
    if (nfc_path != nfc_canonical)
        return false;
    LOG_MSG(DEBUG, "File exist.");
    return true;
}

// The record of a file that does not exist yet, as if about to be created.
void FillMissingFileInfo(const ustring& path, _FILE_INFO_tag& info)
{
    info.exists = false;
    info.mtime = static_cast<int32_t>(time(nullptr));
    info.path = path;
    info.size = 0;
    info.type = FILE_TYPE_REGULAR;
    info.uid = 0;
    info.gid = 0;
    info.mode = 0;
}

int OpenForCopy(const ustring& path, int flags)
{
    const int fd = open(path.c_str(), flags | O_CLOEXEC, kNewFileMode);
    if (fd < 0)
        LOG_MSG(ERROR, "CopyFile: open(%s): %s (%d)", path.c_str(), strerror(errno), errno);
    return fd;
}

// Logs a failed write of the copy target. A full device is told apart from
// other write errors so that callers can say so.
int ReportWriteFailure(int error)
{
    LOG_MSG(ERROR, "CopyFile: write: %s (%d)", strerror(error), error);
    return error == ENOSPC ? FS_DEVICE_FULL : FS_ERROR;
}

// Writes all of data, continuing after short writes; FS_OK, FS_ERROR or FS_DEVICE_FULL.
int WriteChunk(int fd, const char* data, ssize_t length)
{
    while (length > 0) {
        const ssize_t written = write(fd, data, static_cast<size_t>(length));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 1)
            return ReportWriteFailure(errno);
        data += written;
        length -= written;
    }
    return FS_OK;
}

ssize_t ReadChunk(int fd, char* buffer)
{
    ssize_t count;
    do {
        count = read(fd, buffer, kCopyBufferSize);
    } while (count < 0 && errno == EINTR);
    return count;
}

// Copies every byte from src_fd to dst_fd; FS_OK, FS_ERROR or FS_DEVICE_FULL.
int CopyBytes(int src_fd, int dst_fd)
{
    std::unique_ptr<char, FreeDeleter> buffer(static_cast<char*>(malloc(kCopyBufferSize)), &free);
    if (!buffer) {
        LOG_MSG(ERROR, "FSCopy: malloc(%d): %s (%d)", static_cast<int>(kCopyBufferSize), strerror(errno),
                errno);
        return FS_ERROR;
    }
    ssize_t count;
    while ((count = ReadChunk(src_fd, buffer.get())) > 0) {
        const int status = WriteChunk(dst_fd, buffer.get(), count);
        if (status != FS_OK)
            return status;
    }
    if (count < 0) {
        LOG_MSG(ERROR, "CopyFile: read: %s (%d)", strerror(errno), errno);
        return FS_ERROR;
    }
    return FS_OK;
}

// Flushes and closes fd; the first failure's errno is kept.
int SyncAndClose(int fd)
{
    const int sync_status = fsync(fd);
    const int sync_errno = errno;
    const int close_status = close(fd);
    if (sync_status != 0) {
        errno = sync_errno;
        return -1;
    }
    return close_status;
}

// Data the device could not take may only show up at the flush; a copy that
// then counted as done would let FSRename delete the only good source.
int FinishCopyTarget(int dst_fd, int copy_status)
{
    if (SyncAndClose(dst_fd) == 0 || copy_status != FS_OK)
        return copy_status;
    return ReportWriteFailure(errno);
}

// Removes one file, link or empty folder as a step of a move or delete.
int RemoveEntry(const ustring& path)
{
    return remove(path.c_str()) == 0 ? FS_OK : FS_STEP_FAILED;
}

int MoveFolderAcrossDevices(const ustring& src, const ustring& dst, bool exact);

// The EXDEV fallback of FSRename. Links, devices and other special files
// cannot be carried over by copying and are left where they are.
int MoveAcrossDevices(const ustring& src, const ustring& dst, int32_t type, bool exact)
{
    if (type == FILE_TYPE_REGULAR)
        return FSCopy(src, dst, true) < 0 ? FS_STEP_FAILED : FS_OK;
    if (type == FILE_TYPE_DIRECTORY)
        return MoveFolderAcrossDevices(src, dst, exact);
    return FS_OK;
}

enum class WalkOutcome { NotOpened, Stopped, Finished };

// Calls visit with the name of every entry of dir but "." and "..", depth
// first through the caller's recursion, until visit returns nonzero. A read
// error ends the walk as if the folder were exhausted.
WalkOutcome ForEachChild(const ustring& dir, const std::function<int(const ustring&)>& visit)
{
    DIR_HANDLE handle;
    if (FSOpenDir(dir, 0, handle) != FS_OK)
        return WalkOutcome::NotOpened;
    WalkOutcome outcome = WalkOutcome::Finished;
    DIR_ENTRY entry;
    while (FSReadDir(handle, entry) == FS_DIR_ENTRY) {
        if (IsDotEntry(entry.name.c_str()))
            continue;
        if (visit(entry.name) != FS_OK) {
            outcome = WalkOutcome::Stopped;
            break;
        }
    }
    FSCloseDir(handle);
    return outcome;
}

int MoveFolderAcrossDevices(const ustring& src, const ustring& dst, bool exact)
{
    if (FSMKDir(dst, true) != FS_OK)
        return FS_STEP_FAILED;
    const WalkOutcome outcome = ForEachChild(src, [&](const ustring& name) {
        return FSRename(ChildPath(src, name), ChildPath(dst, name), exact);
    });
    if (outcome != WalkOutcome::Finished)
        return FS_STEP_FAILED;
    return RemoveEntry(src);
}

// FSRemove's walk reaches every entry by name from its open folder and takes
// its type from readdir where the file system gives one: no lookup of the
// whole path and no stat per entry, which is what a large tree's deletion
// spent its time on. The path is kept for the log only.
const int kWalkedFolderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

int RemoveFolderAt(int parent_fd, const char* name, std::string& path);

// As FSRemove of the entry's path would: a vanished entry is done, one that
// cannot be examined is an error.
int RemoveChildAt(int dir_fd, const struct dirent& entry, std::string& path)
{
    int32_t type = TypeFromDirentType(entry.d_type);
    if (type == FILE_TYPE_UNKNOWN) {
        struct stat st;
        if (fstatat(dir_fd, entry.d_name, &st, AT_SYMLINK_NOFOLLOW) != 0)
            return errno == ENOENT ? FS_OK : FS_ERROR;
        type = TypeFromMode(st.st_mode);
    }
    if (type != FILE_TYPE_DIRECTORY)
        return unlinkat(dir_fd, entry.d_name, 0) == 0 ? FS_OK : FS_STEP_FAILED;
    const size_t parent_length = path.size();
    path.append("/").append(entry.d_name);
    const int status = RemoveFolderAt(dir_fd, entry.d_name, path);
    path.resize(parent_length);
    return status;
}

// False once an entry refuses to go. A read error ends the walk as if the
// folder were exhausted; removing the folder then fails.
bool RemoveChildren(DIR* dir, std::string& path)
{
    const int dir_fd = dirfd(dir);
    for (;;) {
        errno = 0;
        const struct dirent* entry = readdir(dir);
        if (entry == nullptr) {
            if (errno != 0)
                LogReadDirFailure(path.c_str(), errno);
            return true;
        }
        if (!IsDotEntry(entry->d_name) && RemoveChildAt(dir_fd, *entry, path) != FS_OK)
            return false;
    }
}

// A folder that cannot be opened stays and counts as removed.
int RemoveFolderAt(int parent_fd, const char* name, std::string& path)
{
    const int fd = openat(parent_fd, name, kWalkedFolderFlags);
    DIR* dir = fd < 0 ? nullptr : fdopendir(fd);
    if (dir == nullptr) {
        LogOpenDirFailure(path.c_str(), errno);
        if (fd >= 0)
            close(fd);
        return FS_OK;
    }
    const bool emptied = RemoveChildren(dir, path);
    closedir(dir);
    if (!emptied)
        return FS_STEP_FAILED;
    return unlinkat(parent_fd, name, AT_REMOVEDIR) == 0 ? FS_OK : FS_STEP_FAILED;
}

// Gives a folder made by FSMKDirP to the configured owner; nothing to do
// while no owner was configured.
void GiveToConfiguredOwner(const char* path)
{
    if (uid == kNoId && gid == kNoId)
        return;
    const uid_t owner = uid == kNoId ? geteuid() : uid;
    const gid_t group = gid == kNoId ? getegid() : gid;
    if (chown(path, owner, group) != 0)
        LOG_MSG(DEBUG, "chown(%s): %s", path, strerror(errno));
}

// Makes prefix a folder if it is not one; 0, or -1 with errno set.
int EnsureFolder(const char* prefix, bool is_last, bool replace_non_dirs, mode_t mode)
{
    struct stat st;
    if (stat(prefix, &st) == 0) {
        if (S_ISDIR(st.st_mode))
            return 0;
        if (!replace_non_dirs) {
            errno = is_last ? EEXIST : ENOTDIR;
            return -1;
        }
        if (remove(prefix) != 0)
            return -1;
    }
    if (mkdir(prefix, mode) != 0)
        return -1;
    GiveToConfiguredOwner(prefix);
    return 0;
}

// Walks text component by component, cutting it after each one in turn.
// *end receives the offset of the character that ended the last component
// handled.
int MakeEachFolder(char* text, bool replace_non_dirs, mode_t mode, size_t* end)
{
    size_t start = text[0] == '/' ? 1 : 0;
    for (;;) {
        const size_t cut = start + strcspn(text + start, "/");
        const bool is_last = text[cut] == '\0' || text[cut + 1] == '\0';
        const char saved = text[cut];
        text[cut] = '\0';
        const int status = EnsureFolder(text, is_last, replace_non_dirs, mode);
        text[cut] = saved;
        *end = cut;
        if (status != 0)
            return -1;
        if (is_last)
            return 0;
        start = cut + 1;
    }
}

}  // namespace

bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b)
{
    return a.exists == b.exists && a.size == b.size && a.mtime == b.mtime && a.type == b.type &&
           a.path == b.path && a.extra == b.extra;
}

bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b)
{
    return !(a == b);
}

void FSInitialize(unsigned new_uid, unsigned new_gid)
{
    uid = new_uid;
    gid = new_gid;
}

int FSInit(const ustring&)
{
    return 0;
}

int FSChown(const ustring& path)
{
    return chown(path.c_str(), uid, gid);
}

bool IsFileExist(const ustring& path, bool exact)
{
    const ustring nfc_path = path.normalize(ustring::NFC);
    if (nfc_path.empty())
        return false;
    // Names compare in NFC, but a file system that keeps names byte for byte
    // finds a decomposed name only as it was typed.
    const ustring* spelling = &nfc_path;
    if (access(nfc_path.c_str(), F_OK) != 0) {
        if (nfc_path == path || access(path.c_str(), F_OK) != 0)
            return false;
        spelling = &path;
    }
    return !exact || IsCanonicalSpelling(*spelling, nfc_path);
}

int GetFileInfo(const ustring& path, _FILE_INFO_tag& info)
{
    struct stat st;
    if (lstat(path.c_str(), &st) != 0) {
        if (errno != ENOENT)
            return FS_ERROR;
        FillMissingFileInfo(path, info);
        return FS_OK;
    }
    info.exists = true;
    info.mtime = static_cast<int32_t>(st.st_mtime);
    info.path = path;
    info.size = st.st_size;
    info.uid = st.st_uid;
    info.gid = st.st_gid;
    info.mode = st.st_mode & kStatModeBits;
    const int32_t type = TypeFromMode(st.st_mode);
    if (type < 0)
        return FS_ERROR;
    info.type = type;
    // A path the platform cannot resolve (a dangling link) keeps its spelling.
    FSGetRealPath(info.path);
    return FS_OK;
}

int FSGetRealPath(ustring& path)
{
    LOG_MSG(DEBUG, " org path [%s]", path.c_str());
    char canonical[fs_platform::kPathBufferSize] = {};
    fs_platform::ResolveStep failed_step;
    if (fs_platform::canonical_path(path.c_str(), canonical, &failed_step) != 0)
        return FS_ERROR;
    path = canonical;
    LOG_MSG(DEBUG, " get full path [%s]", path.c_str());
    return FS_OK;
}

int FSStat(const ustring& path, _FILE_INFO_tag& info, bool exact)
{
    if (path.empty())
        return FS_ERROR;
    if (!IsFileExist(path, exact)) {
        info.exists = false;
        return FS_OK;
    }
    return GetFileInfo(path, info) == FS_OK ? FS_OK : FS_SOURCE_MISSING;
}

int FSCopy(const ustring& src, const ustring& dst, bool remove_src)
{
    const int src_fd = OpenForCopy(src, O_RDONLY);
    if (src_fd < 0)
        return FS_ERROR;
    const int dst_fd = OpenForCopy(dst, O_WRONLY | O_CREAT | O_TRUNC);
    if (dst_fd < 0) {
        close(src_fd);
        return FS_ERROR;
    }
    const int status = FinishCopyTarget(dst_fd, CopyBytes(src_fd, dst_fd));
    // Read-only descriptor: closing it cannot lose data.
    close(src_fd);
    if (status != FS_OK || !remove_src)
        return status;
    return remove(src.c_str()) == 0 ? FS_OK : FS_ERROR;
}

int FSRename(const ustring& src, const ustring& dst, bool exact)
{
    if (src.empty() || dst.empty())
        return FS_ERROR;
    _FILE_INFO_tag info;
    if (FSStat(src, info, exact) != FS_OK || !info.exists)
        return FS_SOURCE_MISSING;
    if (rename(src.c_str(), dst.c_str()) == 0)
        return FS_OK;
    const int error = errno;
    if (error == EXDEV)
        return MoveAcrossDevices(src, dst, info.type, exact);
    LOG_MSG(ERROR, "FSRename: rename(%s, %s): %s (%d)", src.c_str(), dst.c_str(), strerror(error), error);
    return error == ENAMETOOLONG ? FS_NAME_TOO_LONG : FS_STEP_FAILED;
}

int FSMKDir(const ustring& path, bool recursive)
{
    if (path.empty())
        return FS_ERROR;
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != FS_OK) {
        LOG_MSG(ERROR, "FSMKDir: Failed to to file info '%s'", path.c_str());
        return FS_ERROR;
    }
    if (info.exists) {
        if (info.type == FILE_TYPE_DIRECTORY)
            return FS_OK;
        LOG_MSG(ERROR, "FSMKDir: Create a folder but local file system is not directory '%s' (%d)",
                path.c_str(), info.type);
        return FS_ERROR;
    }
    const int status = recursive ? FSMKDirP(path, nullptr, false, kDefaultFolderModeRequest)
                                 : mkdir(path.c_str(), kDefaultFolderMode);
    if (status != 0) {
        LOG_MSG(ERROR, "FSMKDir: mkdir(%s): %s (%d)", path.c_str(), strerror(errno), errno);
        return FS_NOT_CREATED;
    }
    if (FSChown(path) != 0)
        LOG_MSG(DEBUG, "chown(%s): %s", path.c_str(), strerror(errno));
    return FS_OK;
}

int FSMKDirP(const ustring& path, char** stop_at, bool replace_non_dirs, unsigned short mode)
{
    if (path.empty())
        return FS_ERROR;
    std::unique_ptr<char, FreeDeleter> text(strdup(path.c_str()), &free);
    if (!text)
        return FS_ERROR;
    // An explicit mode is meant literally, so the umask is lifted meanwhile.
    const bool explicit_mode = mode != kDefaultFolderModeRequest;
    const mode_t saved_umask = explicit_mode ? umask(0) : 0;
    size_t end = 0;
    const mode_t folder_mode = explicit_mode ? mode : kDefaultFolderMode;
    const int status = MakeEachFolder(text.get(), replace_non_dirs, folder_mode, &end);
    const int saved_errno = errno;
    if (explicit_mode)
        umask(saved_umask);
    if (stop_at != nullptr)
        *stop_at = const_cast<char*>(path.c_str()) + end;
    errno = saved_errno;
    return status;
}

int FSRemove(const ustring& path, bool)
{
    if (path.empty())
        return FS_ERROR;
    struct stat st;
    if (lstat(path.c_str(), &st) != 0)
        return errno == ENOENT ? FS_OK : FS_ERROR;
    // lstat typed a link as a link, so it is removed itself, never followed.
    if (!S_ISDIR(st.st_mode))
        return RemoveEntry(path);
    std::string walked = path.c_str();
    return RemoveFolderAt(AT_FDCWD, path.c_str(), walked);
}

int FSExchange(const ustring& path, const ustring& other)
{
    if (fs_platform::exchange(path.c_str(), other.c_str()) == 0)
        return FS_OK;
    const int error = errno;
    LOG_MSG(WARNING, "FSExchange: exchange(%s, %s): %s (%d)", path.c_str(), other.c_str(), strerror(error),
            error);
    errno = error;
    return FS_ERROR;
}

int FSSync(const ustring& path)
{
    if (fs_platform::sync_file_system(path.c_str()) == 0)
        return FS_OK;
    LOG_MSG(ERROR, "FSSync: sync(%s): %s (%d)", path.c_str(), strerror(errno), errno);
    return FS_ERROR;
}

int FSMktemp(const ustring& dir, ustring& out)
{
    const ustring name_template = dir + "/XXXXXX";
    char name[fs_platform::kPathBufferSize] = {};
    int fd = -1;
    if (name_template.length() >= sizeof name) {
        errno = ENAMETOOLONG;
    } else {
        memcpy(name, name_template.c_str(), name_template.length());
        fd = mkstemp(name);
    }
    if (fd < 0) {
        LOG_MSG(ERROR, "mkstemp(%s): %s", name_template.c_str(), strerror(errno));
        return FS_ERROR;
    }
    if (SyncAndClose(fd) != 0)
        LOG_MSG(WARNING, "fsync(%s): %s", name, strerror(errno));
    out = name;
    if (chmod(name, kTempFileMode) != 0)
        LOG_MSG(WARNING, "chmod(%s): %s", name, strerror(errno));
    return FS_OK;
}

int FSCreateTempPath(const ustring& dir, ustring& out)
{
    out = TmpNameGen::getInstance()->getTmpPath(dir);
    return out.empty() ? FS_ERROR : FS_OK;
}

int FSUTime(const ustring& path, long atime, long mtime)
{
    const struct utimbuf times = {atime, mtime};
    return utime(path.c_str(), &times) == 0 ? FS_OK : FS_ERROR;
}

int FSOpenDir(const ustring& path, int flags, DIR_HANDLE& handle)
{
    DIR* dir = opendir(path.c_str());
    if (dir == nullptr) {
        LogOpenDirFailure(path.c_str(), errno);
        return FS_ERROR;
    }
    handle.dir = dir;
    handle.path = path;
    handle.flags = flags;
    return FS_OK;
}

int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry)
{
    // readdir on the walk's own stream is as safe as readdir_r and not deprecated.
    errno = 0;
    const struct dirent* next = readdir(handle.dir);
    if (next == nullptr) {
        if (errno == 0)
            return FS_DIR_END;
        LogReadDirFailure(handle.path.c_str(), errno);
        return FS_ERROR;
    }
    // An entry that vanishes before it is examined keeps time and size 0.
    _FILE_INFO_tag info;
    if (handle.flags & FS_DIR_WITH_INFO) {
        const ustring full_path = ChildPath(handle.path, next->d_name);
        if (FSStat(full_path, info, true) < FS_OK) {
            LOG_MSG(ERROR, "FSOpenDir: Failed to get info for '%s'", full_path.c_str());
            return FS_ERROR;
        }
    }
    entry.mtime = info.mtime;
    entry.size = info.size;
    entry.name = next->d_name;
    entry.type = TypeFromDirentType(next->d_type);
    return FS_DIR_ENTRY;
}

void FSCloseDir(DIR_HANDLE& handle)
{
    if (handle.dir != nullptr)
        closedir(handle.dir);
    handle.dir = nullptr;
    handle.path.clear();
}

bool FSTimeEqual(long a, long b)
{
    return a == b;
}

bool isFileLocked(const ustring& path, int mode)
{
    if (access(path.c_str(), mode) == 0)
        return false;
    return errno == EACCES || errno == EPERM;
}

bool isMountPoint(const ustring& path)
{
    std::string name;
    if (fs_platform::type_name(path.c_str(), &name) != 0) {
        LOG_MSG(ERROR, "isMountPoint: Failed to get file system info '%s'. %s", path.c_str(),
                strerror(errno));
        return false;
    }
    return name == "nfs" || name == "smbfs" || name == "afpfs";
}

bool IsMSDOS(const ustring& path)
{
    std::string name;
    if (fs_platform::type_name(path.c_str(), &name) != 0) {
        LOG_MSG(ERROR, "IsSupportLargeFile: Failed to get file system info '%s'. %s", path.c_str(),
                strerror(errno));
        return false;
    }
    if (name != "msdos")
        return false;
    LOG_MSG(WARNING, "Detect a MSDOS platform for path '%s'.", path.c_str());
    return true;
}
