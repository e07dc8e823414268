#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <climits>
#include <fstream>
#include <map>
#include <string>
#include "config.h"

using namespace std::string_literals;
using Entries = std::map<ustring, ustring>;

// Writes content byte for byte (NUL bytes included) and reads it back.
static int readText(Config& config, const std::string& content)
{
    static QTemporaryDir dir;
    const std::string path = dir.filePath("file.conf").toStdString();
    std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
    return config.read(ustring(path));
}

TEST(Config, SyntaxRules)
{
    Config config;
    config.entries["kept"] = "from before";
    ASSERT_EQ(readText(config,
                       "# c\n\n \t \nspaced = 123 # c\ndq=\"a b\"\nsq='say \"hi\" = # x'\nempty=\"\"\n"
                       "bare=a#b\nCR-LF.0=v\r\n=anon\nk#=x\ntwice=1\ntwice=2\npid=12\0 3\n\0\0\nno_newline"s),
              0);
    const Entries expected = {{"", "anon"},  {"bare", "a#b"},   {"CR-LF.0", "v"},
                              {"dq", "a b"}, {"empty", ""},     {"kept", "from before"},
                              {"pid", "12"}, {"spaced", "123"}, {"sq", "say \"hi\" = # x"},
                              {"twice", "2"}};
    EXPECT_EQ(config.entries, expected);
    // Lines are C strings: a zero byte ends one. Any error empties the map.
    for (const std::string& bad :
         {"key=\n"s, "key\n"s, "[Version]\n"s, "k\xc3\xa9y=1\n"s, "key=a b\nafter=2\n"s, "key=\"open\n"s,
          "key='a' b\n"s, "key=a\x7f\n"s, "key='a\tb'\n"s, "key='"s}) {
        config.entries["from_before"] = "x";
        EXPECT_EQ(readText(config, "good=1\n" + bad), -1) << bad;
        EXPECT_TRUE(config.entries.empty()) << bad;
    }
    // fgets reads pieces of 8191 bytes, each a line of its own: the first ends where "b=2" begins.
    const std::string value(8189, 'v');
    ASSERT_EQ(readText(config, "a=" + value + "b=2\n"), 0);
    EXPECT_EQ(config.entries, (Entries{{"a", value}, {"b", "2"}}));
    EXPECT_EQ(readText(config, "q=\"" + std::string(8191, 'v') + "\"\n"), -1);
}

TEST(Config, NumbersReadLikeAtoiButClampedToTheIntRange)
{
    // clang-format off
    const std::pair<const char*, int> numbers[] = {
        {"42", 42}, {"+42", 42}, {"42abc", 42}, {"042", 42}, {" \t42", 42}, {"-7", -7}, {"", 0}, {"abc", 0},
        {"0x1A", 0}, {"2147483647", INT_MAX}, {"4294967338", INT_MAX}, {"-2147483649", INT_MIN},
        {"99999999999999999999", INT_MAX}};
    // clang-format on
    for (const auto& [text, number] : numbers)
        EXPECT_EQ(Config::to_int(text), number) << "'" << text << "'";
}
