#ifndef TEST_ARCHIVE_H
#define TEST_ARCHIVE_H
#include <QString>
#include <string>
#include <vector>

struct TestEntry {
    std::string name, content;  // folders have no content
    bool folder = false;
};
// Empty when this libarchive build cannot write the format/filter pair.
std::string MakeArchive(int format, int filter, const std::vector<TestEntry>& entries);
bool WriteBytes(const QString& path, const std::string& bytes);  // creates the parent folders
std::string ReadBytes(const QString& path);
struct LogCapture {       // what the service and extractor logged since it was made
    static QString path;  // set by main()
    size_t start = ReadBytes(path).size();
    std::string Text() const { return ReadBytes(path).substr(start); }  // the log only grows
};
#endif  // TEST_ARCHIVE_H
