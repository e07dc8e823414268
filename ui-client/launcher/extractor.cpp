#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>

#include <sys/stat.h>
#include <sys/statvfs.h>

#include <algorithm>
#include <cstdint>
#include <iostream>
#include <memory>
#include <string>

#include "entry-guard.h"
#include "log.h"
#include "notify-adapter.h"
#include "strtable.h"
#include "utf8-names.h"

#define LOG_COMPONENT "extractor_debug"
#define LOG_TAG "extractor"

namespace {

const size_t kReadBlockSize = 10240;

// Replace files in place, refuse ".." paths, keep macOS metadata where the
// library supports it; permissions, times and owners stay at the defaults.
const int kDiskWriteOptions =
    ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;

// What an unpack leaves free on the destination's file system for the
// user's other programs: 3 % of it, as much as any package needs at most.
const int64_t kSparePercent = 3;
const int64_t kMaxSpareBytes = 128LL * 1024 * 1024;

// Every handle is freed on every way out.
using ReadHandle = std::unique_ptr<archive, decltype(&archive_read_free)>;
using WriteHandle = std::unique_ptr<archive, decltype(&archive_write_free)>;

// The library leaves the text unset when the failure came from elsewhere.
const char* ErrorText(archive* handle)
{
    const char* text = archive_error_string(handle);
    return text ? text : "";
}

// Accepts whatever the linked library can read, not only the package's own format.
int OpenForReading(archive* reader, const ustring& path)
{
    if (archive_read_support_filter_all(reader) != ARCHIVE_OK ||
        archive_read_support_format_all(reader) != ARCHIVE_OK)
        return ARCHIVE_FATAL;
    return archive_read_open_filename(reader, path.c_str_utf8(), kReadBlockSize);
}

// The opening shared by Count and List; null after logging why.
ReadHandle OpenEntryWalk(const ustring& archive_path, const ustring& dest_path)
{
    if (archive_path.empty() || dest_path.empty()) {
        LOG_MSG(ERROR, "Invalid argument");
        return ReadHandle(nullptr, archive_read_free);
    }
    ReadHandle reader(archive_read_new(), archive_read_free);
    if (!reader) {
        LOG_MSG(ERROR, "Allocate archive failed");
        return ReadHandle(nullptr, archive_read_free);
    }
    if (OpenForReading(reader.get(), archive_path) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_read_open_filename failed: '%s'", ErrorText(reader.get()));
        return ReadHandle(nullptr, archive_read_free);
    }
    return reader;
}

// Entries readable before the end or the first bad header, or -1; data_bytes
// receives the size of their data. A bad header ends the count like the end
// does: Extract reports it.
int CountEntries(const ustring& archive_path, const ustring& dest_path, int64_t* data_bytes)
{
    const Utf8Names utf8_names;
    ReadHandle reader = OpenEntryWalk(archive_path, dest_path);
    if (!reader)
        return -1;
    int entries = 0;
    *data_bytes = 0;
    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        ++entries;
        *data_bytes += archive_entry_size(entry);
        // A skip that fails leaves the reader failed, which ends the loop.
        archive_read_data_skip(reader.get());
    }
    return entries;
}

// Whether entries that hold data_bytes fit on dest_path's file system, each
// taking up to a block more than its data and a file of its own, with room
// left for the user's other programs; logs what is missing. True when the
// free space cannot be told: the writes then show it.
bool FitsOnDisk(const ustring& dest_path, int64_t data_bytes, int entries)
{
    struct statvfs file_system;
    if (statvfs(dest_path.c_str_utf8(), &file_system) != 0)
        return true;
    const int64_t block = static_cast<int64_t>(file_system.f_frsize);
    const int64_t size = block * static_cast<int64_t>(file_system.f_blocks);
    const int64_t spare = std::min(size * kSparePercent / 100, kMaxSpareBytes);
    const int64_t bytes_missing =
        data_bytes + block * entries + spare - block * static_cast<int64_t>(file_system.f_bavail);
    // File systems that make room for files as they come count none.
    const int64_t files_missing =
        file_system.f_files == 0 ? 0 : entries - static_cast<int64_t>(file_system.f_favail);
    if (bytes_missing > 0)
        LOG_MSG(ERROR, "not enough space to unpack into '%s': %lld bytes missing", dest_path.c_str_utf8(),
                static_cast<long long>(bytes_missing));
    if (files_missing > 0)
        LOG_MSG(ERROR, "not enough space to unpack into '%s': room for %lld more files missing",
                dest_path.c_str_utf8(), static_cast<long long>(files_missing));
    return bytes_missing <= 0 && files_missing <= 0;
}

// Names and hard-link targets land below dest_path: they are only prefixed,
// so a leading "/" still lands below it, and ".." is left for the writer to
// refuse. Folders stay writable by their owner, so that a later upgrade can
// always delete or restore them.
void PlaceBelow(archive_entry* entry, const ustring& dest_path, const char* name)
{
    const ustring target = dest_path + "/" + name;
    archive_entry_set_pathname(entry, target.c_str_utf8());
    if (const char* hard_link_target = archive_entry_hardlink(entry)) {
        const ustring placed = dest_path + "/" + hard_link_target;
        archive_entry_set_hardlink(entry, placed.c_str_utf8());
    }
    if (archive_entry_filetype(entry) == AE_IFDIR)
        archive_entry_set_perm(entry, archive_entry_perm(entry) | S_IRWXU);
}

// Writes one entry below dest_path, unless the guard refuses it.
int WriteEntry(archive* reader, archive* writer, archive_entry* entry, const ustring& dest_path,
               EntryGuard& guard)
{
    const char* name = archive_entry_pathname(entry);
    if (!name) {
        LOG_MSG_WITHOUT_NEWLINE(ERROR, "archive_entry_pathname failed");
        return -1;
    }
    const std::string refusal = guard.Refusal(entry);
    if (!refusal.empty()) {
        LOG_MSG(ERROR, "refusing '%s': %s", name, refusal.c_str());
        return -1;
    }
    PlaceBelow(entry, dest_path, name);
    if (archive_read_extract2(reader, entry, writer) != ARCHIVE_OK) {
        // A read that fails inside the copy leaves its message on the reader only.
        const char* reason = archive_error_string(writer) ? ErrorText(writer) : ErrorText(reader);
        LOG_MSG(ERROR, "archive_read_extract2 failed: '%s'", reason);
        return -1;
    }
    return 0;
}

// Progress counts entries: each one is reported once its data is on disk.
int ExtractEntries(archive* reader, archive* writer, const ustring& dest_path, int total)
{
    EntryGuard guard;
    for (int current = 1;; ++current) {
        archive_entry* entry = nullptr;
        const int status = archive_read_next_header(reader, &entry);
        if (status == ARCHIVE_EOF)
            return 0;
        if (status != ARCHIVE_OK) {
            LOG_MSG(ERROR, "archive_read_next_header failed: '%s'", ErrorText(reader));
            return -1;
        }
        if (WriteEntry(reader, writer, entry, dest_path, guard) != 0)
            return -1;
        Notify_Adapter::GetInstance()->UpdateProgress(total, current);
        if (archive_write_finish_entry(writer) != ARCHIVE_OK) {
            LOG_MSG(ERROR, "archive_write_finish_entry failed: '%s'", ErrorText(writer));
            return -1;
        }
    }
}

}  // namespace

int Extractor::Extract()
{
    if (archive_path.empty() || dest_path.empty()) {
        LOG_MSG(ERROR, "Invalid Argument");
        return -1;
    }
    LOG_MSG(DEBUG, "decompress from '%s' to '%s'", archive_path.c_str_utf8(), dest_path.c_str_utf8());
    Notify_Adapter::GetInstance()->UpdateDialogText(StrTable::LoadStr(StrTable::kEnvironmentPreparing));
    // Refusing an empty archive here keeps the progress total at 1 or more.
    int64_t data_bytes = 0;
    const int total = CountEntries(archive_path, dest_path, &data_bytes);
    if (total < 1) {
        LOG_MSG(ERROR, "Failed to calculate total file numbers, ret: %d", total);
        return -1;
    }
    // A package that cannot fit would fill the user's disk before failing.
    if (!FitsOnDisk(dest_path, data_bytes, total))
        return -1;
    const Utf8Names utf8_names;  // Count has its own

    ReadHandle reader(archive_read_new(), archive_read_free);
    WriteHandle writer(archive_write_disk_new(), archive_write_free);
    // Setting options only fails on a broken handle, so it counts as allocation.
    if (!reader || !writer || archive_write_disk_set_options(writer.get(), kDiskWriteOptions) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "Allocate extractor failed");
        return -1;
    }
    if (OpenForReading(reader.get(), archive_path) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "Failed to read file '%s' ('%s')", archive_path.c_str_utf8(), ErrorText(reader.get()));
        return -1;
    }
    return ExtractEntries(reader.get(), writer.get(), dest_path, total);
}

int Extractor::Count()
{
    int64_t data_bytes = 0;
    return CountEntries(archive_path, dest_path, &data_bytes);
}

int Extractor::List()
{
    const Utf8Names utf8_names;
    ReadHandle reader = OpenEntryWalk(archive_path, dest_path);
    if (!reader)
        return -1;
    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        if (const char* name = archive_entry_pathname(entry))
            std::cout << name << std::endl;
        archive_read_data_skip(reader.get());
    }
    return 0;
}

int Extractor::copy_data(archive* reader, archive* writer)
{
    if (!reader || !writer) {
        LOG_MSG(ERROR, "Invalid Argument");
        return -1;
    }
    for (;;) {
        const void* buffer = nullptr;
        size_t size = 0;
        la_int64_t offset = 0;
        const int status = archive_read_data_block(reader, &buffer, &size, &offset);
        if (status == ARCHIVE_EOF)
            return 0;
        if (status != ARCHIVE_OK) {
            LOG_MSG(ERROR, "archive_read_data_block failed: '%s'", ErrorText(reader));
            return -1;
        }
        if (archive_write_data_block(writer, buffer, size, offset) != ARCHIVE_OK) {
            LOG_MSG(ERROR, "archive_write_data_block failed: '%s'", ErrorText(writer));
            return -1;
        }
    }
}
