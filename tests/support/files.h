#ifndef TEST_FILES_H
#define TEST_FILES_H

#include <QString>

#include <functional>
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
// Returns once ready() holds or the time is up.
void WaitUntil(const std::function<bool()>& ready, int timeout_ms);

#endif  // TEST_FILES_H
