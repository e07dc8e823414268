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

// Written by libarchive; empty when this build cannot write the pair.
std::string MakeArchive(int format, int filter, const std::vector<TestEntry>& entries);
// A plain tar whose header of entry index fails its checksum.
std::string MakeDamagedTar(const std::vector<TestEntry>& entries, size_t index);

// Creates the parent folders; false on failure.
bool WriteBytes(const QString& path, const std::string& bytes);
std::string ReadBytes(const QString& path);

// What the service and extractor components logged since the capture was made.
class LogCapture {
public:
    static QString path;  // set by main()
    std::string Text() const;

private:
    size_t start = ReadBytes(path).size();
};

#endif  // TEST_ARCHIVE_H
