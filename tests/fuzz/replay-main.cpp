// Runs a fuzz target over every file in the folders named on the command line; a failed property aborts.
#include <iterator>
#include "fuzz-support.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int main(int argc, char** argv)
{
    int replayed = 0;
    std::error_code missing;  // git keeps no empty folders: a target without regressions has none
    for (int i = 1; i < argc; ++i)
        for (const auto& input : std::filesystem::directory_iterator(argv[i], missing)) {
            std::ifstream file(input.path(), std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
            replayed += 1 + LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
        }
    return std::printf("replayed %d inputs\n", replayed) && replayed > 0 ? 0 : 1;
}
