#include "scratch-folder.h"

#include <ftw.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

const int kOpenFolders = 16;

int RemoveOne(const char* path, const struct stat*, int, struct FTW*)
{
    remove(path);
    return 0;
}

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
    std::unique_ptr<FILE, decltype(&fclose)> file(fopen(path.c_str(), "wb"), &fclose);
    if (!file)
        return false;
    if (size > 0 && fwrite(data, 1, size, file.get()) != size)
        return false;
    return fflush(file.get()) == 0;
}

void RemoveTree(const std::string& path)
{
    if (!path.empty())
        nftw(path.c_str(), RemoveOne, kOpenFolders, FTW_DEPTH | FTW_PHYS);
}
