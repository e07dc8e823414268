#ifndef LOG_CAPTURE_H
#define LOG_CAPTURE_H

#include <QString>

#include <string>

#include "files.h"

// What the code under test logged since the capture was made. unit-main.cpp
// sends every component's messages, debug lines included, to one file.
class LogCapture {
public:
    static QString path;

    std::string Text() const { return ReadBytes(path).substr(start); }  // the log only grows

private:
    size_t start = ReadBytes(path).size();
};

#endif  // LOG_CAPTURE_H
