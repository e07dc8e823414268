#ifndef TEST_PACKAGES_H
#define TEST_PACKAGES_H

#include <archive.h>

#include <QString>

#include <map>
#include <string>
#include <vector>

enum class EntryKind { File, Folder, SymbolicLink, HardLink, Fifo };

struct PackageEntry {
    std::string name;
    std::string content;  // a file's bytes, or a link's target
    EntryKind kind = EntryKind::File;
    int mode = 0644;
};

// A version file naming the build.
std::string VersionFile(int build);
// A client's bundle: the stand-in client, extra and, last, the version file.
std::vector<PackageEntry> ClientBundle(int build, std::vector<PackageEntry> extra = {});

// The entries packed in libarchive's format and filter; empty when this
// libarchive cannot write them so.
std::string MakeArchive(const std::vector<PackageEntry>& entries, int format = ARCHIVE_FORMAT_ZIP,
                        int filter = ARCHIVE_FILTER_NONE);

// Relative path -> "d" for a folder, "l:" + target for a symbolic link,
// "f:" + content for a file (or a hard link, read through).
using TreeSnapshot = std::map<std::string, std::string>;

// What a folder holds; links are recorded, never followed.
TreeSnapshot SnapshotOfFolder(const QString& folder);
// What unpacking the entries gives, for files and folders.
TreeSnapshot SnapshotOfEntries(const std::vector<PackageEntry>& entries);
// Writes entries that are files and folders below folder; false for others.
bool WriteEntries(const QString& folder, const std::vector<PackageEntry>& entries);

#endif  // TEST_PACKAGES_H
