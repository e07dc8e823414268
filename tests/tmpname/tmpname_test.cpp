#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <string>
#include <utility>

#include "tmp_name_gen.h"

namespace {

const char ALPHABET[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
const char FIXED_KEY[] = "1700000000-123456";

// RC4 written out independently: the key text is zero-padded to 256 bytes,
// and each name restarts i and j while the permutation carries over.
class ReferenceNames {
public:
    explicit ReferenceNames(const std::string& key_text)
    {
        std::string key = key_text;
        key.resize(256, '\0');
        for (int n = 0; n < 256; ++n)
            s[n] = static_cast<unsigned char>(n);
        for (int n = 0, j = 0; n < 256; ++n) {
            j = (j + s[n] + static_cast<unsigned char>(key[n])) % 256;
            std::swap(s[n], s[j]);
        }
    }

    std::string next()
    {
        unsigned char b[6];
        for (int k = 0, i = 0, j = 0; k < 6; ++k) {
            i = (i + 1) % 256;
            j = (j + s[i]) % 256;
            std::swap(s[i], s[j]);
            b[k] = s[(s[i] + s[j]) % 256];
        }
        const int indices[] = {b[0] >> 2, ((b[0] & 3) << 4) | (b[1] >> 4), ((b[1] & 15) << 2) | (b[2] >> 6), b[2] & 63,
                               b[3] >> 2, ((b[3] & 3) << 4) | (b[4] >> 4), ((b[4] & 15) << 2) | (b[5] >> 6), b[5] & 63};
        std::string name;
        for (int index : indices)
            name += ALPHABET[index];
        return name;
    }

private:
    unsigned char s[256];
};

TEST(TmpNameGen, NamesFollowTheKeyedSequence)
{
    TmpNameGen generator(FIXED_KEY);
    ReferenceNames reference(FIXED_KEY);
    for (int n = 0; n < 200; ++n)
        EXPECT_EQ(std::string(generator.getTmpName().c_str_utf8()), reference.next()) << "name " << n;
}

TEST(TmpNameGen, SharedInstanceGivesDistinctFileSafeNames)
{
    TmpNameGen* generator = TmpNameGen::getInstance();
    ASSERT_EQ(generator, TmpNameGen::getInstance());
    std::set<std::string> names;
    for (int n = 0; n < 2000; ++n)
        names.insert(generator->getTmpName().c_str_utf8());
    EXPECT_EQ(names.size(), 2000u);
    for (const std::string& name : names)
        ASSERT_TRUE(name.size() == 8 && name.find_first_not_of(ALPHABET) == std::string::npos) << name;

    EXPECT_TRUE(std::regex_match(generator->getTmpPath("/tmp").c_str_utf8(), std::regex("/tmp/[0-9a-zA-Z_-]{8}")));
    EXPECT_TRUE(std::regex_match(generator->getTmpPath("").c_str_utf8(), std::regex("/[0-9a-zA-Z_-]{8}")));
}

}  // namespace
