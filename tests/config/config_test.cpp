#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <fstream>
#include <map>
#include <string>

#include "config.h"

namespace {

using namespace std::string_literals;
using Entries = std::map<ustring, ustring>;

class ConfigTest : public ::testing::Test {
protected:
    // Writes content byte for byte (NUL bytes included) and reads it back.
    int readText(const std::string& content)
    {
        const std::string path = dir.filePath("file.conf").toStdString();
        std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
        return config.read(ustring(path));
    }

    QTemporaryDir dir;
    Config config;
};

TEST_F(ConfigTest, ReadsEntriesCommentsQuotesAndLineEnds)
{
    config.entries["kept"] = "from before";
    EXPECT_EQ(config.read(ustring(dir.filePath("absent").toStdString())), -1);
    ASSERT_EQ(readText("# comment\n\n \t \npid=123\nspaced = 123 # client\ndq=\"a b\"\n"
                       "sq='say \"hi\" = # there'\nempty=\"\"\nbare=a#b\nraw=x='\"\xc3\xa9\ncrlf=v\r\n"
                       "=anonymous\nkey_then_hash#=x\ntwice=1\ntwice=2\nlast_key_without_newline"),
              0);
    const Entries expected = {{"", "anonymous"}, {"bare", "a#b"},   {"crlf", "v"},         {"dq", "a b"},
                              {"empty", ""},     {"kept", "from before"}, {"pid", "123"}, {"raw", "x='\"\xc3\xa9"},
                              {"spaced", "123"}, {"sq", "say \"hi\" = # there"},          {"twice", "2"}};
    EXPECT_EQ(config.entries, expected);
}

TEST_F(ConfigTest, AnySyntaxErrorEmptiesTheMapAndStopsReading)
{
    // NUL bytes are control bytes, not the end of the line; at the end of the
    // file a quote must still be closed.
    for (const std::string& bad : {"key=\n"s, "key= \r\n"s, "key\n"s, "[Version]\n"s, "k\xc3\xa9y=1\n"s,
                                   "key=a b\nafter=2\n"s, "key=\"open\n"s, "key=\"a\tb\"\n"s, "key='a' b\n"s,
                                   "key=a\x7f\n"s, "pid=12\0 3\n"s, "key='"s}) {
        SCOPED_TRACE(bad);
        config.entries["from_before"] = "x";
        EXPECT_EQ(readText("good=1\n" + bad), -1);
        EXPECT_TRUE(config.entries.empty());
    }
}

TEST_F(ConfigTest, LongLinesAreParsedInPiecesOf8191Bytes)
{
    // The first piece ends exactly where "b=2" begins; splitting one byte
    // later would store "=2" under the empty key instead.
    const std::string value(8189, 'v');
    ASSERT_EQ(readText("a=" + value + "b=2\n"), 0);
    EXPECT_EQ(config.entries, (Entries{{"a", value}, {"b", "2"}}));
    EXPECT_EQ(readText("q=\"" + std::string(8191, 'v') + "\"\n"), -1);
}

TEST_F(ConfigTest, GetIntReadsLeadingNumbersAndAddsAbsentKeys)
{
    for (const auto& [text, number] : std::map<std::string, int>{{"+42", 42}, {" \t42abc", 42}, {"-7", -7}, {"0x1A", 0}}) {
        config.entries["n"] = ustring(text);
        EXPECT_EQ(config.get_int("n"), number) << text;
    }
    EXPECT_EQ(config.get_int("absent"), 0);
    EXPECT_EQ(config.entries.count("absent"), 1u);
}

}  // namespace
