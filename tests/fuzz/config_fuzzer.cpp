// Config::read on arbitrary bytes: failures leave no entries, keys stay key characters, values text.
#include <cctype>
#include <cstring>
#include "config.h"
#include "fuzz-support.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Config config;
    const int result = config.read(WriteScratch("config", data, size).c_str());
    FUZZ_CHECK(result == 0 || (result == -1 && config.entries.empty()));
    for (const auto& [key, value] : config.entries) {
        for (size_t i = 0; i < key.size(); ++i)
            FUZZ_CHECK(std::isalnum(static_cast<unsigned char>(key[i])) || (key[i] && std::strchr("-._", key[i])));
        for (size_t i = 0; i < value.size(); ++i)
            FUZZ_CHECK(static_cast<unsigned char>(value[i]) >= 0x20 && value[i] != 0x7f);
    }
    FUZZ_CHECK(config.get_int(ustring("no key of the file can be this")) == 0);
    return 0;
}
