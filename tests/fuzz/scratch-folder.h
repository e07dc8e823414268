#ifndef SCRATCH_FOLDER_H
#define SCRATCH_FOLDER_H

#include <string>

// A private folder under $TMPDIR (or /tmp) for the whole run; empty if it
// cannot be made.
const std::string& ScratchFolder();

// Writes size bytes to path; false on any failure.
bool WriteWhole(const std::string& path, const unsigned char* data, size_t size);

// Deletes path and everything below it, links not followed.
void RemoveTree(const std::string& path);

#endif  // SCRATCH_FOLDER_H
