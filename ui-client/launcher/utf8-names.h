#ifndef UTF8_NAMES_H
#define UTF8_NAMES_H

#include <locale.h>

// While it lives, the calling thread converts file names as UTF-8, whatever
// locale the user runs in. Archive entry names are UTF-8, and under the C
// locale the archive library cannot convert a non-ASCII one at all. Only
// this thread is affected; without a UTF-8 locale on the system it changes
// nothing.
class Utf8Names {
public:
    Utf8Names();
    ~Utf8Names();

    Utf8Names(const Utf8Names&) = delete;
    Utf8Names& operator=(const Utf8Names&) = delete;

private:
    locale_t utf8 = nullptr;
    locale_t previous = nullptr;
};

#endif  // UTF8_NAMES_H
