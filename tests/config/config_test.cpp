#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <climits>
#include <fstream>
#include <map>
#include <string>

#include "config.h"

namespace {

using namespace std::string_literals;
using Entries = std::map<std::string, std::string>;

class ConfigTest : public ::testing::Test {
protected:
    // Reads content (NUL bytes included) and returns the result of read().
    int readText(const std::string& content)
    {
        const std::string path = dir.filePath("file.conf").toStdString();
        std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
        return config.read(ustring(path));
    }

    Entries entries() const
    {
        Entries result;
        for (const auto& entry : config.entries)
            result[entry.first.c_str_utf8()] = entry.second.c_str_utf8();
        return result;
    }

    QTemporaryDir dir;
    Config config;
};

TEST_F(ConfigTest, ReadsEntriesCommentsQuotesAndLineEnds)
{
    config.entries["kept"] = "from before";
    EXPECT_EQ(config.read(""), -1);
    EXPECT_EQ(config.read(ustring(dir.filePath("absent").toStdString())), -1);
    ASSERT_EQ(readText("# comment\n\n \t \npid=123\nspaced = 123 # client\ndq=\"a b\"\n"
                       "sq='say \"hi\" = # there'\nempty=\"\"\nbare=a#b\nraw=x='\"\xc3\xa9\ncrlf=v\r\n"
                       "=anonymous\nkey_then_hash#=x\ntwice=1\ntwice=2\nCase=up\nlast_key_without_newline"),
              0);
    const Entries expected = {{"", "anonymous"}, {"Case", "up"},       {"bare", "a#b"},
                              {"crlf", "v"},      {"dq", "a b"},        {"empty", ""},
                              {"kept", "from before"}, {"pid", "123"},  {"raw", "x='\"\xc3\xa9"},
                              {"spaced", "123"},  {"sq", "say \"hi\" = # there"}, {"twice", "2"}};
    EXPECT_EQ(entries(), expected);
}

TEST_F(ConfigTest, AnySyntaxErrorEmptiesTheMap)
{
    // NUL bytes count as control bytes, not as the end of the line.
    for (const std::string& bad : {"key=\n"s, "key= \r\n"s, "key\n"s, "[Version]\n"s, "k\xc3\xa9y=1\n"s,
                                   "key=a b\n"s, "key=a\tb\n"s, "key=\"open\n"s, "key=\"a\tb\"\n"s,
                                   "key='a' b\n"s, "key=a\x7f\n"s, "pid=12\0 3\n"s, "\0\n"s, "q=\"a\0b\"\n"s}) {
        SCOPED_TRACE(bad);
        config.entries["from_before"] = "x";
        EXPECT_EQ(readText("good=1\n" + bad + "after=2\n"), -1);
        EXPECT_TRUE(config.entries.empty());
    }
    // At the end of the file the text simply stops: a quote must still be closed.
    for (const char* last : {"key=\"no end", "key='"}) {
        EXPECT_EQ(readText("good=1\n"s + last), -1);
        EXPECT_TRUE(config.entries.empty());
    }
    EXPECT_EQ(readText("pid=1 # \0 in a comment\n"s), 0);
}

TEST_F(ConfigTest, LongLinesAreParsedInPiecesOf8191Bytes)
{
    // The first piece ends exactly where "b=2" begins; splitting one byte
    // later would store "=2" under the empty key instead.
    const std::string value(8189, 'v');
    ASSERT_EQ(readText("a=" + value + "b=2\n"), 0);
    EXPECT_EQ(entries(), (Entries{{"a", value}, {"b", "2"}}));
    EXPECT_EQ(readText("q=\"" + std::string(8191, 'v') + "\"\n"), -1);
}

TEST_F(ConfigTest, GetIntReadsLeadingDecimalNumbers)
{
    for (const auto& [text, number] : std::map<std::string, int>{
             {"42", 42}, {"+42", 42}, {"42abc", 42}, {"042", 42}, {" \t42", 42}, {"-7", -7}, {"", 0},
             {"abc", 0}, {"0x1A", 0}, {"99999999999999", INT_MAX}, {"-99999999999999", INT_MIN}}) {
        config.entries["n"] = ustring(text);
        EXPECT_EQ(config.get_int("n"), number) << text;
    }
    EXPECT_EQ(config.get_int("absent"), 0);
    ASSERT_EQ(config.entries.count("absent"), 1u);
    EXPECT_TRUE(config.entries["absent"].empty());
}

}  // namespace
