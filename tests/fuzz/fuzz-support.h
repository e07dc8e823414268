#pragma once
#include <stdlib.h>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#define FUZZ_CHECK(c) ((c) ? (void)0 : (std::fprintf(stderr, "%s:%d: failed: %s\n", __FILE__, __LINE__, #c), std::abort()))
// A private folder for the run, removed at exit; never freed, as the exit handler needs its name.
inline const std::string& ScratchFolder()
{
    static const std::string* folder = [] {
        auto* name = new std::string(std::filesystem::temp_directory_path().string() + "/drovia-fuzz-XXXXXX");
        FUZZ_CHECK(mkdtemp(&(*name)[0]) && !std::atexit([] { std::filesystem::remove_all(ScratchFolder()); }));
        return name;
    }();
    return *folder;
}

inline std::string WriteScratch(const char* name, const void* data, size_t size)
{
    const std::string path = ScratchFolder() + "/" + name;
    FUZZ_CHECK(std::ofstream(path, std::ios::binary).write(static_cast<const char*>(data), std::streamsize(size)).flush());
    return path;
}
