// Runs a fuzz target over the files named on the command line, and over
// every file in the folders named there; any failed property aborts.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);
extern "C" __attribute__((weak)) int LLVMFuzzerInitialize(int* argc, char*** argv);

namespace fs = std::filesystem;

int main(int argc, char** argv)
{
    if (LLVMFuzzerInitialize)
        LLVMFuzzerInitialize(&argc, &argv);
    int replayed = 0;
    for (int i = 1; i < argc; ++i) {
        // A regressions folder holds nothing until a fuzzer finds a crash, and
        // git keeps no empty folders, so a missing folder means no inputs.
        std::vector<fs::path> inputs;
        if (fs::is_directory(argv[i])) {
            for (const auto& entry : fs::directory_iterator(argv[i]))
                if (!entry.is_directory())
                    inputs.push_back(entry.path());
        } else if (fs::exists(argv[i])) {
            inputs.push_back(argv[i]);
        }
        for (const fs::path& input : inputs) {
            std::ifstream file(input, std::ios::binary);
            if (!file) {
                std::fprintf(stderr, "cannot read %s\n", input.c_str());
                return 1;
            }
            const std::vector<char> bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
            ++replayed;
        }
    }
    std::printf("replayed %d inputs\n", replayed);
    return 0;
}
