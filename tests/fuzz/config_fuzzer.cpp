// Config::read on arbitrary file contents: a read either fails with an empty
// map or yields keys of key characters and values free of control bytes.
#include <cstddef>
#include <cstdint>
#include <string>

#include "config.h"
#include "fuzz-check.h"
#include "scratch-folder.h"

namespace {

bool IsKeyByte(unsigned char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '.' ||
           c == '_';
}

bool HasControlByte(const ustring& text)
{
    for (size_t i = 0; i < text.size(); ++i) {
        const unsigned char c = static_cast<unsigned char>(text[i]);
        if (c < 0x20 || c == 0x7f)
            return true;
    }
    return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const std::string path = ScratchFolder() + "/config";
    FUZZ_CHECK(WriteWhole(path, data, size));

    Config config;
    const int result = config.read(path.c_str());
    FUZZ_CHECK(result == 0 || result == -1);
    if (result != 0) {
        FUZZ_CHECK(config.entries.empty());
        return 0;
    }
    for (const auto& [key, value] : config.entries) {
        for (size_t i = 0; i < key.size(); ++i)
            FUZZ_CHECK(IsKeyByte(static_cast<unsigned char>(key[i])));
        FUZZ_CHECK(!HasControlByte(value));
    }
    const ustring missing("no key of the file can be this");
    FUZZ_CHECK(config.get_int(missing) == 0);
    for (const auto& entry : config.entries)
        config.get_int(entry.first);
    return 0;
}
