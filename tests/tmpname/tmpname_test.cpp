#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tmp_name_gen.h"

// Checked once against an independent RC4: the key zero-padded to 256 bytes,
// each name restarting i and j while the permutation carries over, six bits a
// character of "0-9a-zA-Z-_".
TEST(TmpNameGen, NamesFollowTheKeyedSequence)
{
    TmpNameGen generator("1700000000-123456");
    std::vector<std::string> names;
    for (int name = 0; name < 200; ++name)
        names.push_back(generator.getTmpName().c_str_utf8());
    names.erase(names.begin() + 4, names.end() - 1);
    EXPECT_EQ(names, (std::vector<std::string>{"4e-5Metp", "J8x3FAX9", "2SrkJCfK", "rl5LIP9j", "Cjet2uAt"}));
}
