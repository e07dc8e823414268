#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <climits>
#include <fstream>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "config.h"

namespace {

const std::size_t PIECE_SIZE = 8191;

class ConfigTest : public ::testing::Test {
protected:
    // Writes bytes as they stand, NUL bytes included.
    ustring writeFile(const std::string& content)
    {
        const std::string path = dir.filePath("file.conf").toStdString();
        std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
        return ustring(path);
    }

    static std::map<std::string, std::string> plain(const Config& config)
    {
        std::map<std::string, std::string> result;
        for (const auto& entry : config.entries)
            result[entry.first.c_str_utf8()] = entry.second.c_str_utf8();
        return result;
    }

    QTemporaryDir dir;
};

TEST_F(ConfigTest, ReadsEntriesCommentsQuotesAndLineEnds)
{
    const std::string content =
        "# a comment line\n"
        "\n"
        " \t \n"
        "pid=123\n"
        "spaced = 123 # client\n"
        "dq=\"a b\"\n"
        "sq='say \"hi\" = # there'\n"
        "empty=\"\"\n"
        "empty_single=''\n"
        "bare=a#b\n"
        "raw=x='\"\xc3\xa9\n"
        "crlf=v\r\n"
        "=anonymous\n"
        "key_then_hash#=ignored\n"
        "twice=1\n"
        "twice=2\n"
        "Case=upper\n"
        "trailing_key_at_eof";
    Config config;
    config.entries["kept"] = "from before";
    ASSERT_EQ(config.read(writeFile(content)), 0);

    const std::map<std::string, std::string> expected = {
        {"", "anonymous"},        {"Case", "upper"},
        {"bare", "a#b"},          {"crlf", "v"},
        {"dq", "a b"},            {"empty", ""},
        {"empty_single", ""},     {"kept", "from before"},
        {"pid", "123"},           {"raw", "x='\"\xc3\xa9"},
        {"spaced", "123"},        {"sq", "say \"hi\" = # there"},
        {"twice", "2"},
    };
    EXPECT_EQ(plain(config), expected);
}

TEST_F(ConfigTest, MissingFileOrEmptyPathFailsAndKeepsEntries)
{
    Config config;
    config.entries["kept"] = "1";
    EXPECT_EQ(config.read(""), -1);
    EXPECT_EQ(config.read(ustring(dir.filePath("absent").toStdString())), -1);
    EXPECT_EQ(config.entries.size(), 1u);

    EXPECT_EQ(config.read(writeFile("")), 0);
    EXPECT_EQ(config.entries.size(), 1u);
}

TEST_F(ConfigTest, AnySyntaxErrorEmptiesTheMap)
{
    const std::vector<std::string> bad_lines = {
        "key=\n",          "key=   \n",        "key= \r\n",        "key\n",
        "[Version]\n",     "key!=1\n",         "k\xc3\xa9y=1\n",   "key=a b\n",
        "key=a\tb\n",      "key=\"open\n",     "key=\"a\tb\"\n",   "key='a' b\n",
        "key=\"a\"b\n",    "key=a\x7f\n",      "key=\"a\x7f\"\n",  "key: 1\n",
    };
    for (const std::string& bad : bad_lines) {
        SCOPED_TRACE(bad);
        Config config;
        config.entries["from_before"] = "x";
        EXPECT_EQ(config.read(writeFile("good=1\n" + bad + "after=2\n")), -1);
        EXPECT_TRUE(config.entries.empty());
    }

    // Without a newline the text simply ends: a quote must still be closed.
    for (const char* last : {"key=\"no end", "key='", "key=\"a\" b"}) {
        SCOPED_TRACE(last);
        Config config;
        EXPECT_EQ(config.read(writeFile("good=1\n" + std::string(last))), -1);
        EXPECT_TRUE(config.entries.empty());
    }
}

TEST_F(ConfigTest, LongLinesAreParsedInPiecesOf8191Bytes)
{
    // The first piece ends exactly where "b=2" begins; a reader that split
    // one byte later would see "=2" and store an empty key instead.
    const std::string value(PIECE_SIZE - 2, 'v');
    Config config;
    ASSERT_EQ(config.read(writeFile("a=" + value + "b=2\n")), 0);
    EXPECT_EQ(plain(config), (std::map<std::string, std::string>{{"a", value}, {"b", "2"}}));

    // A quoted value cannot span pieces: the first piece ends inside the quote.
    Config quoted;
    EXPECT_EQ(quoted.read(writeFile("q=\"" + std::string(PIECE_SIZE, 'v') + "\"\n")), -1);

    // Blank lines far longer than a piece are still only blank.
    Config blank;
    EXPECT_EQ(blank.read(writeFile(std::string(3 * PIECE_SIZE, ' ') + "\nk=1\n")), 0);
    EXPECT_EQ(plain(blank), (std::map<std::string, std::string>{{"k", "1"}}));
}

TEST_F(ConfigTest, NulBytesAreControlBytesNotEndsOfText)
{
    using namespace std::string_literals;
    for (const std::string& bad : {"pid=12\0 3\n"s, "\0\n"s, "pid\0=1\n"s, "q=\"a\0b\"\n"s}) {
        Config config;
        EXPECT_EQ(config.read(writeFile(bad)), -1);
        EXPECT_TRUE(config.entries.empty());
    }
    Config commented;
    EXPECT_EQ(commented.read(writeFile("pid=1 # \0 after\n"s)), 0);
    EXPECT_EQ(plain(commented), (std::map<std::string, std::string>{{"pid", "1"}}));
}

TEST_F(ConfigTest, ArbitraryBytesNeverBreakTheReader)
{
    std::mt19937 random(20240611);
    std::uniform_int_distribution<int> byte(0, 255);
    for (int round = 0; round < 20; ++round) {
        std::string content(20000, '\0');
        for (char& c : content)
            c = static_cast<char>(byte(random));
        // Newlines now and then, so that short lines get parsed too.
        for (std::size_t i = 0; i < content.size(); i += 1 + byte(random) % 64)
            content[i] = '\n';
        Config config;
        const int result = config.read(writeFile(content));
        EXPECT_TRUE(result == 0 || result == -1);
        EXPECT_TRUE(result == 0 || config.entries.empty());
    }
}

TEST_F(ConfigTest, GetIntReadsLeadingDecimalNumbers)
{
    const std::vector<std::pair<std::string, int>> cases = {
        {"42", 42},  {"+42", 42}, {"42abc", 42}, {"042", 42},       {"  \t42", 42},
        {"-7", -7},  {"", 0},     {"abc", 0},    {"0x1A", 0},       {"- 7", 0},
        {"99999999999999", INT_MAX},             {"-99999999999999", INT_MIN},
    };
    Config config;
    for (const auto& [text, number] : cases) {
        config.entries["n"] = ustring(text);
        EXPECT_EQ(config.get_int("n"), number) << text;
    }

    EXPECT_EQ(config.get_int("absent"), 0);
    ASSERT_EQ(config.entries.count("absent"), 1u);
    EXPECT_TRUE(config.entries["absent"].empty());
}

}  // namespace
