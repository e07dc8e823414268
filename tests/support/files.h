#ifndef TEST_FILES_H
#define TEST_FILES_H

#include <QStringList>

#include <random>
#include <string>

// Writes bytes as they are, creating the parent folders.
bool WriteBytes(const QString& path, const std::string& bytes);
// The file's bytes, empty when it cannot be read.
std::string ReadBytes(const QString& path);
// size bytes of every value, the same for the same generator state.
std::string RandomBytes(std::mt19937& random, size_t size);
// How often a repeated check runs: quick in the default run, soak when
// DROVIA_SOAK is set (scripts/soak.sh).
int Repetitions(int quick, int soak);
// Takes the kernel's lock on the file, creating it, as another program would;
// the descriptor holds it until closed, -1 when it cannot be had.
int HoldLock(const QString& path);
// "Nov 16 20:31:15 [DEBUG] launcher(57): running" -> "launcher: running"
QStringList MessagesIn(const QString& log);

// What the code under test logged since the capture was made. test-main.cpp
// sends every component's messages, debug lines included, to one file.
class LogCapture {
public:
    static QString path;

    std::string Text() const { return ReadBytes(path).substr(start); }  // the log only grows

private:
    size_t start = ReadBytes(path).size();
};

#endif  // TEST_FILES_H
