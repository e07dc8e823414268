#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "tmp_name_gen.h"

namespace {

const char kAlphabet[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

// An independent RC4: the key zero-padded to 256 bytes, and each name
// restarting i and j while the permutation carries over.
TEST(TmpNameGen, NamesFollowTheKeyedSequence)
{
    std::string key = "1700000000-123456";
    TmpNameGen generator(key.c_str());
    unsigned char s[256];
    key.resize(256, '\0');
    for (int n = 0; n < 256; ++n)
        s[n] = static_cast<unsigned char>(n);
    for (int n = 0, j = 0; n < 256; ++n) {
        j = (j + s[n] + static_cast<unsigned char>(key[n])) % 256;
        std::swap(s[n], s[j]);
    }
    for (int name = 0; name < 200; ++name) {
        unsigned long long bits = 0;
        for (int k = 0, i = 0, j = 0; k < 6; ++k) {
            i = (i + 1) % 256;
            j = (j + s[i]) % 256;
            std::swap(s[i], s[j]);
            bits = bits << 8 | s[(s[i] + s[j]) % 256];
        }
        std::string expected;  // 48 bits, six per character
        for (int shift = 42; shift >= 0; shift -= 6)
            expected += kAlphabet[(bits >> shift) & 63];
        ASSERT_EQ(std::string(generator.getTmpName().c_str_utf8()), expected) << "name " << name;
    }
}

}  // namespace
