#include "config.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace {

// fgets reads lines in pieces of at most kLineBufferSize - 1 bytes; a
// longer line is parsed piece by piece.
const std::size_t kLineBufferSize = 8192;

enum LineResult { LINE_IGNORED, LINE_ENTRY, LINE_SYNTAX_ERROR };

using FilePtr = std::unique_ptr<FILE, decltype(&fclose)>;

// Explicit byte tests rather than <cctype>: the launcher switches to the
// user's locale at start-up, and the syntax must not change with it.
bool IsBlank(unsigned char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool IsControl(unsigned char c)
{
    return c < 0x20 || c == 0x7f;
}

bool IsKeyChar(unsigned char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '.' || c == '_';
}

std::size_t SkipBlanks(std::string_view line, std::size_t pos)
{
    while (pos < line.size() && IsBlank(line[pos]))
        ++pos;
    return pos;
}

std::size_t SkipKey(std::string_view line, std::size_t pos)
{
    while (pos < line.size() && IsKeyChar(line[pos]))
        ++pos;
    return pos;
}

// A quoted value ends at the same quote and may not hold control bytes; a
// bare value ends at the first blank or control byte. On success pos is
// left just after the value.
bool ParseValue(std::string_view line, std::size_t& pos, std::string_view& value)
{
    const char quote = line[pos];
    if (quote != '"' && quote != '\'') {
        const std::size_t start = pos;
        while (pos < line.size() && line[pos] != ' ' && !IsControl(line[pos]))
            ++pos;
        value = line.substr(start, pos - start);
        return true;
    }
    const std::size_t start = pos + 1;
    for (pos = start; pos < line.size() && line[pos] != quote; ++pos) {
        if (IsControl(line[pos]))
            return false;
    }
    if (pos == line.size())
        return false;
    value = line.substr(start, pos - start);
    ++pos;
    return true;
}

LineResult ParseLine(std::string_view line, std::string_view& key, std::string_view& value)
{
    std::size_t pos = SkipBlanks(line, 0);
    const std::size_t key_end = SkipKey(line, pos);
    if (key_end == line.size() || line[key_end] == '#')
        return LINE_IGNORED;
    key = line.substr(pos, key_end - pos);

    pos = SkipBlanks(line, key_end);
    if (pos == line.size() || line[pos] != '=')
        return LINE_SYNTAX_ERROR;
    pos = SkipBlanks(line, pos + 1);
    if (pos == line.size() || !ParseValue(line, pos, value))
        return LINE_SYNTAX_ERROR;

    pos = SkipBlanks(line, pos);
    if (pos < line.size() && line[pos] != '#')
        return LINE_SYNTAX_ERROR;
    return LINE_ENTRY;
}

ustring UstringOf(std::string_view text)
{
    ustring result;
    result.assign(text.data(), text.size());
    return result;
}

// Only a regular file is read: a FIFO or a device named like a pid or level
// file would block the caller or never end. Opening without blocking lets
// the check come first; reading a regular file never blocks anyway.
FilePtr OpenRegularFile(const ustring& path)
{
    const int fd = open(path.c_str_utf8(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return FilePtr(nullptr, &fclose);
    struct stat st;
    if (fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        close(fd);
        return FilePtr(nullptr, &fclose);
    }
    FILE* file = fdopen(fd, "r");
    if (file == nullptr)
        close(fd);
    return FilePtr(file, &fclose);
}

}  // namespace

int Config::read(const ustring& path)
{
    if (path.empty())
        return -1;
    FilePtr file = OpenRegularFile(path);
    if (!file)
        return -1;

    // Each line is a C string: a zero byte ends it, so the padding a crash
    // leaves behind a pid reads as the end of the line, or as a blank line.
    char buffer[kLineBufferSize];
    while (fgets(buffer, sizeof buffer, file.get()) != nullptr) {
        std::string_view key;
        std::string_view value;
        const LineResult result = ParseLine(buffer, key, value);
        if (result == LINE_SYNTAX_ERROR) {
            entries.clear();
            return -1;
        }
        if (result == LINE_ENTRY)
            entries[UstringOf(key)] = UstringOf(value);
    }
    // fgets reports a read error (a folder, an I/O error) as the end of the
    // file; what was read so far may be only part of the entries.
    if (ferror(file.get())) {
        entries.clear();
        return -1;
    }
    return 0;
}

int Config::get_int(const ustring& key)
{
    return to_int(entries[key]);
}

int Config::to_int(const ustring& text)
{
    // Values are C strings of the file's lines, so they hold no zero byte.
    const long number = std::strtol(text.c_str_utf8(), nullptr, 10);
    if (number > INT_MAX)
        return INT_MAX;
    if (number < INT_MIN)
        return INT_MIN;
    return static_cast<int>(number);
}
