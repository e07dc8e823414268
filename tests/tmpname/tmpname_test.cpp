#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <regex>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "tmp_name_gen.h"

namespace {

const char ALPHABET[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
const char FIXED_KEY[] = "1700000000-123456";

// RC4 written out independently of the generator: the key is the text
// zero-padded to 256 bytes, and every name restarts i and j at 0 while the
// permutation carries over.
class ReferenceNames {
public:
    explicit ReferenceNames(const std::string& key_text)
    {
        unsigned char key[256] = {};
        std::copy(key_text.begin(), key_text.end(), key);
        for (int n = 0; n < 256; ++n)
            s[n] = static_cast<unsigned char>(n);
        int j = 0;
        for (int n = 0; n < 256; ++n) {
            j = (j + s[n] + key[n]) % 256;
            std::swap(s[n], s[j]);
        }
    }

    std::string next()
    {
        unsigned char b[6];
        int i = 0;
        int j = 0;
        for (unsigned char& byte : b) {
            i = (i + 1) % 256;
            j = (j + s[i]) % 256;
            std::swap(s[i], s[j]);
            byte = s[(s[i] + s[j]) % 256];
        }
        const char name[] = {ALPHABET[b[0] >> 2],
                             ALPHABET[((b[0] & 3) << 4) | (b[1] >> 4)],
                             ALPHABET[((b[1] & 15) << 2) | (b[2] >> 6)],
                             ALPHABET[b[2] & 63],
                             ALPHABET[b[3] >> 2],
                             ALPHABET[((b[3] & 3) << 4) | (b[4] >> 4)],
                             ALPHABET[((b[4] & 15) << 2) | (b[5] >> 6)],
                             ALPHABET[b[5] & 63],
                             '\0'};
        return name;
    }

private:
    unsigned char s[256];
};

TEST(TmpNameGen, MatchesThePublishedRc4KeystreamForACyclicKey)
{
    // A 256-byte key that repeats "Key" schedules exactly as textbook RC4
    // does with the key "Key", whose keystream starts EB 9F 77 81 B7 34.
    unsigned char key[256];
    for (int n = 0; n < 256; ++n)
        key[n] = static_cast<unsigned char>("Key"[n % 3]);
    unsigned char state[256];
    unsigned char out[6];
    TmpNameGen::rc4_init(state, key);
    TmpNameGen::rc4_randomize(state, out, 6);
    const unsigned char expected[] = {0xEB, 0x9F, 0x77, 0x81, 0xB7, 0x34};
    EXPECT_EQ(std::vector<unsigned char>(out, out + 6), std::vector<unsigned char>(expected, expected + 6));
}

TEST(TmpNameGen, NamesFollowTheKeyedSequence)
{
    TmpNameGen generator(FIXED_KEY);
    TmpNameGen twin(FIXED_KEY);
    ReferenceNames reference(FIXED_KEY);
    for (int n = 0; n < 200; ++n) {
        const std::string name = generator.getTmpName().c_str_utf8();
        EXPECT_EQ(name, reference.next()) << "name " << n;
        EXPECT_EQ(name, twin.getTmpName().c_str_utf8());
    }

    TmpNameGen other("1700000000-123457");
    EXPECT_NE(std::string(other.getTmpName().c_str_utf8()), ReferenceNames(FIXED_KEY).next());
}

TEST(TmpNameGen, TrailingZeroBytesOfTheKeyTakePart)
{
    unsigned char padded[256] = {'a', 'b', 'c'};
    unsigned char marked[256] = {'a', 'b', 'c'};
    marked[255] = 1;
    unsigned char padded_state[256];
    unsigned char marked_state[256];
    TmpNameGen::rc4_init(padded_state, padded);
    TmpNameGen::rc4_init(marked_state, marked);
    EXPECT_NE(std::memcmp(padded_state, marked_state, sizeof padded_state), 0);

    // An empty key text falls back to a random key, which still gives a permutation.
    unsigned char empty[256] = {};
    unsigned char state[256];
    TmpNameGen::rc4_init(state, empty);
    std::sort(state, state + 256);
    for (int n = 0; n < 256; ++n)
        ASSERT_EQ(state[n], n);
}

TEST(TmpNameGen, SharedInstanceGivesDistinctFileSafeNames)
{
    TmpNameGen* generator = TmpNameGen::getInstance();
    ASSERT_EQ(generator, TmpNameGen::getInstance());
    std::set<std::string> names;
    for (int n = 0; n < 2000; ++n) {
        const std::string name = generator->getTmpName().c_str_utf8();
        ASSERT_EQ(name.size(), 8u);
        ASSERT_EQ(name.find_first_not_of(ALPHABET), std::string::npos) << name;
        names.insert(name);
    }
    EXPECT_EQ(names.size(), 2000u);

    const std::regex in_tmp("^/tmp/[0-9a-zA-Z_-]{8}$");
    EXPECT_TRUE(std::regex_match(generator->getTmpPath("/tmp").c_str_utf8(), in_tmp));
    EXPECT_TRUE(std::regex_match(generator->getTmpPath("").c_str_utf8(), std::regex("^/[0-9a-zA-Z_-]{8}$")));
}

TEST(TmpNameGen, KeyTextIsSecondsAndMicroseconds)
{
    TmpNameGen* generator = TmpNameGen::getInstance();
    unsigned char key[256] = {};
    const int length = generator->get_key(key, sizeof key);
    const std::string text(reinterpret_cast<char*>(key));
    EXPECT_TRUE(std::regex_match(text, std::regex("^[0-9]+-[0-9]{1,6}$"))) << text;
    EXPECT_EQ(length, static_cast<int>(text.size()));

    unsigned char small[4] = {'x', 'x', 'x', 'x'};
    EXPECT_GT(generator->get_key(small, sizeof small), 3);
    EXPECT_EQ(small[3], '\0');
}

TEST(TmpNameGen, ConcurrentCallersShareOnePermutation)
{
    const int threads = 4;
    const int per_thread = 20000;
    TmpNameGen generator(FIXED_KEY);
    std::vector<std::vector<std::string>> produced(threads);
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t) {
        workers.emplace_back([&generator, &produced, t] {
            for (int n = 0; n < per_thread; ++n)
                produced[t].push_back(generator.getTmpName().c_str_utf8());
        });
    }
    for (std::thread& worker : workers)
        worker.join();

    // Serialised calls give the same names as a single caller, in some order.
    std::multiset<std::string> all;
    for (const auto& names : produced)
        all.insert(names.begin(), names.end());
    ReferenceNames reference(FIXED_KEY);
    std::multiset<std::string> expected;
    for (int n = 0; n < threads * per_thread; ++n)
        expected.insert(reference.next());
    EXPECT_EQ(all, expected);
}

}  // namespace
