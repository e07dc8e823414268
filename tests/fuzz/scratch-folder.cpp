#include "scratch-folder.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

void RemoveScratch()
{
    RemoveTree(ScratchFolder());
}

// Never freed: the exit handler that removes the folder needs its name
// after static objects are gone.
const std::string* MakeScratchFolder()
{
    const char* base = std::getenv("TMPDIR");
    std::string pattern = std::string(base && *base ? base : "/tmp") + "/drovia-fuzz-XXXXXX";
    if (mkdtemp(&pattern[0]) == nullptr)
        return new std::string();
    std::atexit(RemoveScratch);
    return new std::string(pattern);
}

}  // namespace

const std::string& ScratchFolder()
{
    static const std::string* folder = MakeScratchFolder();
    return *folder;
}

bool WriteWhole(const std::string& path, const unsigned char* data, size_t size)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    file.flush();
    return file.good();
}

void RemoveTree(const std::string& path)
{
    std::error_code ignored;
    if (!path.empty())
        std::filesystem::remove_all(path, ignored);
}
