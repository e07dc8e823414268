#ifndef FUZZ_SUPPORT_H
#define FUZZ_SUPPORT_H

#include <stdlib.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

// A failed property aborts, which libFuzzer reports with the input.
#define FUZZ_CHECK(condition)                                                            \
    do {                                                                                 \
        if (!(condition)) {                                                              \
            std::fprintf(stderr, "%s:%d: failed: %s\n", __FILE__, __LINE__, #condition); \
            std::abort();                                                                \
        }                                                                                \
    } while (false)

// A private folder for the run, removed when the run ends.
inline const std::string& ScratchFolder()
{
    static const struct Folder {
        std::string path = std::filesystem::temp_directory_path().string() + "/drovia-fuzz-XXXXXX";
        Folder() { FUZZ_CHECK(mkdtemp(&path[0]) != nullptr); }
        ~Folder() { std::filesystem::remove_all(path); }
    } folder;
    return folder.path;
}

inline std::string WriteScratch(const char* name, const std::string& bytes)
{
    const std::string path = ScratchFolder() + "/" + name;
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

#endif  // FUZZ_SUPPORT_H
