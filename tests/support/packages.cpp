#include "packages.h"

#include <archive_entry.h>
#include <sys/stat.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <filesystem>
#include <functional>
#include <memory>

#include "files.h"
#include "install-layout.h"

namespace {

const char kFolder[] = "d";
// Longer contents are recorded by size and hash, so that a difference stays readable.
const size_t kContentShown = 40;

std::string FileRecord(const std::string& content)
{
    if (content.size() <= kContentShown)
        return "f:" + content;
    return "f:" + std::to_string(content.size()) + " bytes #" +
           std::to_string(std::hash<std::string>()(content));
}

// By EntryKind; a hard link is typed as the file it names.
const mode_t kFileTypes[] = {AE_IFREG, AE_IFDIR, AE_IFLNK, AE_IFREG, AE_IFIFO};

la_ssize_t AppendToString(archive*, void* sink, const void* data, size_t size)
{
    static_cast<std::string*>(sink)->append(static_cast<const char*>(data), size);
    return static_cast<la_ssize_t>(size);
}

bool WriteEntry(archive* writer, const PackageEntry& item)
{
    std::unique_ptr<archive_entry, decltype(&archive_entry_free)> entry(archive_entry_new(),
                                                                        archive_entry_free);
    archive_entry_set_pathname_utf8(entry.get(), item.name.c_str());
    archive_entry_set_filetype(entry.get(), kFileTypes[static_cast<int>(item.kind)]);
    archive_entry_set_perm(entry.get(), static_cast<mode_t>(item.mode));
    const bool has_data = item.kind == EntryKind::File;
    if (item.kind == EntryKind::SymbolicLink)
        archive_entry_set_symlink_utf8(entry.get(), item.content.c_str());
    if (item.kind == EntryKind::HardLink)
        archive_entry_set_hardlink_utf8(entry.get(), item.content.c_str());
    archive_entry_set_size(entry.get(), has_data ? static_cast<la_int64_t>(item.content.size()) : 0);
    if (archive_write_header(writer, entry.get()) != ARCHIVE_OK)
        return false;
    return !has_data || archive_write_data(writer, item.content.data(), item.content.size()) ==
                            static_cast<la_ssize_t>(item.content.size());
}

}  // namespace

std::string VersionFile(int build)
{
    return std::string("[Version]\n") + layout::kBuildKey + "=" + std::to_string(build) + "\n";
}

std::vector<PackageEntry> ClientBundle(int build, std::vector<PackageEntry> extra)
{
    extra.insert(extra.begin(), {layout::kClientExecutable, ReadBytes(STAND_IN_CLIENT), {}, 0755});
    extra.push_back(
        {std::string(layout::kResourcesFolder) + "/" + layout::kVersionFileName, VersionFile(build)});
    return extra;
}

std::string MakeArchive(const std::vector<PackageEntry>& entries, int format, int filter)
{
    std::string bytes;
    std::unique_ptr<archive, decltype(&archive_write_free)> writer(archive_write_new(), archive_write_free);
    // Names flagged as UTF-8 in a zip, as bsdtar writes them; no padding after
    // the data, which the zstd reader would take for a frame.
    bool written =
        archive_write_set_format(writer.get(), format) == ARCHIVE_OK &&
        (format != ARCHIVE_FORMAT_ZIP ||
         archive_write_set_format_option(writer.get(), "zip", "hdrcharset", "UTF-8") == ARCHIVE_OK) &&
        archive_write_add_filter(writer.get(), filter) == ARCHIVE_OK &&
        archive_write_set_bytes_in_last_block(writer.get(), 1) == ARCHIVE_OK &&
        archive_write_open(writer.get(), &bytes, nullptr, AppendToString, nullptr) == ARCHIVE_OK;
    for (const PackageEntry& item : entries)
        written = written && WriteEntry(writer.get(), item);
    written = written && archive_write_close(writer.get()) == ARCHIVE_OK;
    return written ? bytes : std::string();
}

TreeSnapshot SnapshotOfFolder(const QString& folder)
{
    TreeSnapshot tree;
    const QDir root(folder);
    QDirIterator it(folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const std::string name = root.relativeFilePath(path).toStdString();
        if (it.fileInfo().isSymLink())
            tree[name] = "l:" + std::filesystem::read_symlink(path.toStdString()).string();
        else if (it.fileInfo().isDir())
            tree[name] = kFolder;
        else
            tree[name] = FileRecord(ReadBytes(path));
    }
    return tree;
}

TreeSnapshot SnapshotOfEntries(const std::vector<PackageEntry>& entries)
{
    const QTemporaryDir folder;
    return WriteEntries(folder.path(), entries) ? SnapshotOfFolder(folder.path()) : TreeSnapshot();
}

bool WriteEntries(const QString& folder, const std::vector<PackageEntry>& entries)
{
    for (const PackageEntry& item : entries) {
        const QString path = folder + "/" + QString::fromStdString(item.name);
        if (item.kind != EntryKind::File && item.kind != EntryKind::Folder)
            return false;
        const bool written =
            item.kind == EntryKind::Folder ? QDir().mkpath(path) : WriteBytes(path, item.content);
        if (!written || chmod(path.toUtf8().constData(), static_cast<mode_t>(item.mode)) != 0)
            return false;
    }
    return true;
}
