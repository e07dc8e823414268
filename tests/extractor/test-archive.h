#ifndef TEST_ARCHIVE_H
#define TEST_ARCHIVE_H

#include <QString>

#include <string>
#include <vector>

struct TestEntry {
    std::string name;
    std::string content;  // ignored for folders
    bool folder = false;
};

// The bytes of an archive of entries, written by libarchive in the given
// format and filter codes; empty when the library cannot write that pair.
std::string MakeArchive(int format, int filter, const std::vector<TestEntry>& entries);

// A plain tar of entries whose header of entry index is corrupted.
std::string MakeDamagedTar(const std::vector<TestEntry>& entries, size_t index);

// Writes bytes to path, creating the parent folders. False on failure.
bool WriteBytes(const QString& path, const std::string& bytes);
std::string ReadBytes(const QString& path);

#endif  // TEST_ARCHIVE_H
