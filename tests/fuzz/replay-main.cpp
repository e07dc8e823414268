// Runs a fuzz target over the files named on the command line, and over
// every file in the folders named there; any failed property aborts.
#include <dirent.h>
#include <sys/stat.h>

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);
extern "C" __attribute__((weak)) int LLVMFuzzerInitialize(int* argc, char*** argv);

namespace {

bool Exists(const std::string& path)
{
    struct stat info;
    return stat(path.c_str(), &info) == 0;
}

bool IsFolder(const std::string& path)
{
    struct stat info;
    return stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

// A regressions folder holds nothing until a fuzzer finds a crash, and git
// keeps no empty folders, so a missing folder means no inputs.
std::vector<std::string> InputsIn(const std::string& path)
{
    if (!Exists(path))
        return {};
    if (!IsFolder(path))
        return {path};
    std::vector<std::string> inputs;
    DIR* folder = opendir(path.c_str());
    if (folder == nullptr)
        return inputs;
    while (const dirent* entry = readdir(folder)) {
        const std::string name = entry->d_name;
        if (name != "." && name != ".." && !IsFolder(path + "/" + name))
            inputs.push_back(path + "/" + name);
    }
    closedir(folder);
    return inputs;
}

bool Replay(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return false;
    const std::vector<char> bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
    return true;
}

}  // namespace

int main(int argc, char** argv)
{
    if (LLVMFuzzerInitialize)
        LLVMFuzzerInitialize(&argc, &argv);
    int replayed = 0;
    for (int i = 1; i < argc; ++i) {
        for (const std::string& input : InputsIn(argv[i])) {
            if (!Replay(input)) {
                std::fprintf(stderr, "cannot read %s\n", input.c_str());
                return 1;
            }
            ++replayed;
        }
    }
    std::printf("replayed %d inputs\n", replayed);
    return 0;
}
