#ifndef CONFIG_H
#define CONFIG_H

#include <map>

#include "ustring.h"

// Reads key=value files (the log's level file, the client's pid file).
// The syntax is strict: the first bad line empties the map and fails the read.
class Config {
public:
    // 0 when the whole file was read; -1 for an empty path, a file that
    // cannot be opened, or a syntax error (entries is then empty).
    int read(const ustring& path);

    // The value of key as a decimal integer, 0 when absent or not a number.
    // Like any lookup through entries, it adds an absent key with an empty value.
    int get_int(const ustring& key);

    // text read like atoi: blanks, an optional sign, digits up to the first
    // other byte; 0 without digits. Out-of-range numbers are clamped.
    static int to_int(const ustring& text);

    std::map<ustring, ustring> entries;
};

#endif  // CONFIG_H
