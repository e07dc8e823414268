#include "ustring.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <string>

class UstringInspector {
public:
    static unsigned long data_capacity(const ustring& s) { return s.data_capacity; }
    static unsigned long wdata_capacity(const ustring& s) { return s.wdata_capacity; }
    static unsigned long wdata_len(const ustring& s) { return s.wdata_len; }
};

namespace {

using testing::MatchesRegex;
using UI = UstringInspector;

const unsigned long npos = ustring::npos;

std::u16string utf16_of(const ustring& s)
{
    return std::u16string(reinterpret_cast<const char16_t*>(s.c_str_utf16()));
}

const unsigned short* units(const char16_t* text)
{
    return reinterpret_cast<const unsigned short*>(text);
}

TEST(Ustring, StartsWithSmallBuffersAndGrowsToExactFit)
{
    ustring s;
    EXPECT_EQ(s.size(), 0u);
    EXPECT_STREQ(s.c_str(), "");
    EXPECT_EQ(utf16_of(s), u"");
    EXPECT_EQ(UI::data_capacity(s), 4u);
    EXPECT_EQ(UI::wdata_capacity(s), 4u);

    // Appending byte by byte keeps the buffer while it fits, then fits exactly.
    const unsigned long expected[] = {4, 4, 4, 5, 6, 7};
    for (unsigned long capacity : expected) {
        s += 'x';
        EXPECT_EQ(UI::data_capacity(s), capacity) << "at size " << s.size();
    }
    s.append('y', 94);
    EXPECT_EQ(UI::data_capacity(s), 101u);
    s = "abc";  // under half in use: shrinks
    EXPECT_EQ(UI::data_capacity(s), 4u);
    EXPECT_STREQ(s.c_str(), "abc");

    ustring wide("abcdefghij");
    EXPECT_EQ(utf16_of(wide), u"abcdefghij");
    EXPECT_EQ(UI::wdata_capacity(wide), 11u);
}

TEST(Ustring, ConvertsBetweenUtf8AndUtf16BeyondTheBmp)
{
    const char* utf8 = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";  // a, e-acute, euro, emoji
    const char16_t* utf16 = u"a\u00E9\u20AC\U0001F600";

    ustring from_utf8(utf8);
    EXPECT_EQ(from_utf8.size(), 10u);
    EXPECT_EQ(utf16_of(from_utf8), utf16);
    EXPECT_EQ(UI::wdata_len(from_utf8), 5u);

    ustring from_utf16(units(utf16));
    EXPECT_STREQ(from_utf16.c_str(), utf8);
    EXPECT_EQ(from_utf16, from_utf8);

    // Counted UTF-16 appends count code units, and the copy starts underived.
    ustring counted("x");
    counted.append(units(utf16), 3);
    EXPECT_STREQ(counted.c_str(), "xa\xC3\xA9\xE2\x82\xAC");
    ustring copy(from_utf16);
    EXPECT_EQ(UI::wdata_len(copy), 0u);
    EXPECT_EQ(copy + static_cast<unsigned short>(0x00E9), ustring(utf8) + "\xC3\xA9");
    EXPECT_STREQ((ustring("-") + units(u"\U0001F600")).c_str(), "-\xF0\x9F\x98\x80");
}

TEST(Ustring, NormalizesBothWays)
{
    const ustring composed("\xC3\xA9");
    const ustring decomposed = composed.normalize(ustring::NFD);
    EXPECT_STREQ(decomposed.c_str(), "e\xCC\x81");
    EXPECT_EQ(UI::wdata_len(decomposed), 2u);
    EXPECT_EQ(ustring::normalize(decomposed, ustring::NFC), composed);
    EXPECT_TRUE(ustring::normalize(ustring(), ustring::NFC).empty());
    EXPECT_EQ(ustring("plain/path").normalize(ustring::NFC), ustring("plain/path"));
}

TEST(Ustring, AppendsAndAssignsItself)
{
    ustring s(std::string(1000, 'q') + "end");  // long enough that growing moves the buffer
    s += s;
    EXPECT_EQ(s.size(), 2006u);
    EXPECT_EQ(s.substr(1000, 6), ustring("endqqq"));

    ustring t("abcdef");
    t.append(t, 2, 2);
    EXPECT_STREQ(t.c_str(), "abcdefcd");
    t.append(t.c_str(), 3);
    EXPECT_STREQ(t.c_str(), "abcdefcdabc");
    t = t;
    EXPECT_STREQ(t.c_str(), "abcdefcdabc");
    t.assign(t.c_str());
    EXPECT_STREQ(t.c_str(), "abcdefcdabc");
    t.assign(t.c_str(), 6);
    EXPECT_STREQ(t.c_str(), "abcdef");
    t.assign(t, 1, 3);
    EXPECT_STREQ(t.c_str(), "bcd");

    ustring wide("\xC3\xA9z");
    wide.append(wide.c_str_utf16());
    EXPECT_STREQ(wide.c_str(), "\xC3\xA9z\xC3\xA9z");
    wide.assign(wide.c_str_utf16(), 3);
    EXPECT_STREQ(wide.c_str(), "\xC3\xA9z\xC3\xA9");
}

TEST(Ustring, SearchesForwardFromEdges)
{
    const ustring s("abcdef");
    EXPECT_EQ(s.find("", 3), 3u);
    EXPECT_EQ(s.find('\0', 2), 2u);
    EXPECT_EQ(s.find('x', 6), npos);
    EXPECT_EQ(s.find("", 6), npos);
    EXPECT_EQ(s.find("cd"), 2u);
    EXPECT_EQ(s.find(std::string("cd"), 3), npos);
    EXPECT_EQ(s.find(std::string("e\0z", 3)), 4u);  // a std::string pattern ends at its first 0
    EXPECT_EQ(s.find(ustring("ef"), 1), 4u);

    EXPECT_EQ(s.find_first_of("fd"), 3u);
    EXPECT_EQ(s.find_first_of(""), npos);
    EXPECT_EQ(s.find_first_of('a', 1), npos);
    EXPECT_EQ(s.find_first_not_of("", 0), 0u);
    EXPECT_EQ(s.find_first_not_of(ustring("cba")), 3u);
    EXPECT_EQ(s.find_first_not_of("abcdef"), npos);
    EXPECT_EQ(s.find_first_not_of("", 6), npos);

    // Sets hold single bytes: any byte of a multi-byte character matches.
    EXPECT_EQ(ustring("a\xC3\xA8").find_first_of("\xC3\xA9"), 1u);
}

TEST(Ustring, SearchesBackwardFromEdges)
{
    const ustring abc("abc");
    EXPECT_EQ(abc.rfind(""), 2u);
    EXPECT_EQ(abc.rfind("", 1), 1u);
    EXPECT_EQ(abc.rfind("bc", 1), 1u);  // the match may run past the start
    EXPECT_EQ(abc.rfind(std::string("bc"), 0), npos);
    EXPECT_EQ(abc.rfind('a', 99), 0u);

    const ustring padded("ab  ");
    EXPECT_EQ(padded.find_last_not_of(' '), 1u);
    EXPECT_EQ(padded.find_last_not_of("", npos), 3u);
    EXPECT_EQ(padded.find_last_not_of(ustring(""), 1), 1u);
    EXPECT_EQ(padded.find_last_of(std::string(" "), 2), 2u);
    EXPECT_EQ(padded.find_last_of(" ", 1), npos);
    EXPECT_EQ(padded.find_last_of(""), npos);

    const ustring empty;
    EXPECT_EQ(empty.rfind(""), npos);
    EXPECT_EQ(empty.find_last_of(" "), npos);
    EXPECT_EQ(empty.find_last_not_of(""), npos);
}

TEST(Ustring, TrimsBySetInPlace)
{
    ustring s(" \t a b \t");
    s.c_str_utf16();
    const unsigned long capacity = UI::data_capacity(s);
    s.trim(" \t");
    EXPECT_STREQ(s.c_str(), "a b");
    EXPECT_EQ(UI::data_capacity(s), capacity);
    EXPECT_EQ(utf16_of(s), u"a b");  // the stale UTF-16 form was dropped

    EXPECT_TRUE(ustring("  ").trim(" ").empty());
    EXPECT_STREQ(ustring("xxaxx").ltrim("x").c_str(), "axx");
    EXPECT_STREQ(ustring("xxaxx").rtrim(ustring("x")).c_str(), "xxa");
    EXPECT_STREQ(ustring(" a ").trim("").c_str(), " a ");
    EXPECT_TRUE(ustring().trim(" ").empty());
}

TEST(Ustring, ComparesBytesAsUnsignedAndFoldsOnlyAscii)
{
    EXPECT_EQ(ustring::compare("ABC", "abc", true), 0);
    EXPECT_NE(ustring::compare("\xC3\x84", "\xC3\xA4", true), 0);  // A and a with diaeresis
    EXPECT_EQ(ustring::compare("ABC", "abc", false), 'A' - 'a');
    EXPECT_GT(ustring("\xC3\xA9").compare("z"), 0);
    EXPECT_EQ(ustring("ab").compare("abc"), -'c');
    EXPECT_EQ(ustring("abcX").compare("abcY", 3), 0);
    EXPECT_EQ(ustring("a").compare("b", 0), 0);

    EXPECT_TRUE(ustring("ab") < ustring("abc"));
    EXPECT_TRUE(ustring("\xC3\xA9") > ustring("z"));
    EXPECT_TRUE(ustring("key") == ustring(std::string("key")));
    EXPECT_TRUE(ustring("key") != ustring("keys"));
}

TEST(Ustring, KeepsUtf16FormAfterInPlaceEdits)
{
    ustring s("a/b");
    EXPECT_EQ(utf16_of(s), u"a/b");
    s.replace('/', '\\');
    s[0] = 'c';
    EXPECT_STREQ(s.c_str(), "c\\b");
    EXPECT_EQ(utf16_of(s), u"a/b");
    s.clear_wdata();
    EXPECT_EQ(utf16_of(s), u"c\\b");
}

TEST(Ustring, TakesSubstringsAndRejectsPositionsPastTheEnd)
{
    const ustring s("abc");
    EXPECT_TRUE(s.substr(3, npos).empty());
    EXPECT_EQ(s.substr(1, 1), ustring("b"));
    EXPECT_EQ(s.substr(1, 100), ustring("bc"));
    try {
        s.substr(4);
        FAIL() << "no exception";
    } catch (const std::out_of_range& e) {
        EXPECT_STREQ(e.what(), "substr");
    }
    ustring target("x");
    EXPECT_THROW(target.append(s, 4), std::out_of_range);
    try {
        target.assign(std::string("abc"), 4);
        FAIL() << "no exception";
    } catch (const std::out_of_range& e) {
        EXPECT_STREQ(e.what(), "basic_string::substr");
    }
    target.assign(std::string("ab\0cd", 5), 1);
    EXPECT_STREQ(target.c_str(), "b");
    EXPECT_EQ(target.size(), 1u);
}

TEST(Ustring, WarnsAndEmptiesTheFormThatFailedToConvert)
{
    const ustring invalid("\xC3\x28");
    EXPECT_FALSE(ustring::is_valid(invalid));
    EXPECT_TRUE(ustring::is_valid(ustring()));
    EXPECT_TRUE(ustring::is_valid(ustring("\xF0\x9F\x98\x80")));

    testing::internal::CaptureStderr();
    EXPECT_EQ(utf16_of(invalid), u"");
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                MatchesRegex("Warning: u_strFromUTF8: error code [0-9]+ at line 921\n"));
    EXPECT_STREQ(invalid.c_str(), "\xC3\x28");

    ustring lone("ab");
    testing::internal::CaptureStderr();
    lone += static_cast<unsigned short>(0xD800);
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                MatchesRegex("Warning: u_strToUTF8: error code [0-9]+ at line 888\n"));
    EXPECT_TRUE(lone.empty());
    EXPECT_EQ(UI::wdata_len(lone), 0u);
    EXPECT_EQ(utf16_of(lone), u"");
}

TEST(Ustring, SwapsAndStreams)
{
    ustring a("one"), b("two words");
    a.c_str_utf16();
    swap(a, b);
    EXPECT_STREQ(a.c_str(), "two words");
    EXPECT_EQ(utf16_of(b), u"one");

    std::ostringstream out;
    out << a << '|';
    EXPECT_EQ(out.str(), "two words|");
    std::istringstream in("  first second");
    in >> b;
    EXPECT_STREQ(b.c_str(), "first");
}

}  // namespace
