// Config::read on arbitrary bytes: a failed read leaves no entries, keys are
// key characters and values text, and zero bytes padding the file, as a crash
// leaves them, change nothing: each line reads as a C string.
#include <cstring>

#include "config.h"
#include "fuzz-support.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    Config config;
    const int result = config.read(WriteScratch("config", bytes).c_str());
    FUZZ_CHECK(result == 0 || (result == -1 && config.entries.empty()));
    for (const auto& [key, value] : config.entries) {
        for (size_t i = 0; i < key.size(); ++i)
            FUZZ_CHECK(
                std::strchr("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._", key[i]));
        for (size_t i = 0; i < value.size(); ++i)
            FUZZ_CHECK(static_cast<unsigned char>(value[i]) >= 0x20 && value[i] != 0x7f);
    }
    Config padded;
    FUZZ_CHECK(padded.read(WriteScratch("padded", bytes + std::string(16, '\0')).c_str()) == result);
    FUZZ_CHECK(padded.entries == config.entries);
    FUZZ_CHECK(config.get_int(ustring("no key of the file can be this")) == 0);
    return 0;
}
