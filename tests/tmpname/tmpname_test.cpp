#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tmp_name_gen.h"

namespace {

const char ALPHABET[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

// RC4 written out independently: the key text is zero-padded to 256 bytes,
// and each name restarts i and j while the permutation carries over.
std::vector<std::string> referenceNames(std::string key, int count)
{
    unsigned char s[256];
    key.resize(256, '\0');
    for (int n = 0; n < 256; ++n)
        s[n] = static_cast<unsigned char>(n);
    for (int n = 0, j = 0; n < 256; ++n) {
        j = (j + s[n] + static_cast<unsigned char>(key[n])) % 256;
        std::swap(s[n], s[j]);
    }
    std::vector<std::string> names;
    while (static_cast<int>(names.size()) < count) {
        unsigned long long bits = 0;
        for (int k = 0, i = 0, j = 0; k < 6; ++k) {
            i = (i + 1) % 256;
            j = (j + s[i]) % 256;
            std::swap(s[i], s[j]);
            bits = bits << 8 | s[(s[i] + s[j]) % 256];
        }
        std::string name;
        for (int shift = 42; shift >= 0; shift -= 6)
            name += ALPHABET[(bits >> shift) & 63];
        names.push_back(name);
    }
    return names;
}

TEST(TmpNameGen, NamesFollowTheKeyedSequence)
{
    TmpNameGen generator("1700000000-123456");
    const std::vector<std::string> expected = referenceNames("1700000000-123456", 200);
    for (int n = 0; n < 200; ++n)
        ASSERT_EQ(std::string(generator.getTmpName().c_str_utf8()), expected[n]) << "name " << n;
}

TEST(TmpNameGen, PathsJoinTheFolderAndAName)
{
    TmpNameGen* generator = TmpNameGen::getInstance();
    for (const std::string dir : {"/tmp", ""}) {
        const std::string path = generator->getTmpPath(ustring(dir)).c_str_utf8();
        EXPECT_EQ(path.size(), dir.size() + 9) << path;
        EXPECT_EQ(path.rfind(dir + "/", 0), 0u) << path;
        EXPECT_EQ(path.find_first_not_of(ALPHABET, dir.size() + 1), std::string::npos) << path;
    }
}

}  // namespace
