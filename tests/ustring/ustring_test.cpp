#include "ustring.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

class UstringInspector {
public:
    static unsigned long data_capacity(const ustring& s) { return s.data_capacity; }
    static unsigned long wdata_capacity(const ustring& s) { return s.wdata_capacity; }
    static unsigned long wdata_len(const ustring& s) { return s.wdata_len; }
};

namespace {

using UI = UstringInspector;
const unsigned long npos = ustring::npos;

std::u16string utf16_of(const ustring& s)
{
    return std::u16string(reinterpret_cast<const char16_t*>(s.c_str_utf16()));
}

const unsigned short* units(const char16_t* text) { return reinterpret_cast<const unsigned short*>(text); }

TEST(Ustring, GrowsToExactFitAndShrinksWhenUnderHalfUsed)
{
    ustring s;
    EXPECT_EQ(UI::data_capacity(s), 4u);
    EXPECT_EQ(UI::wdata_capacity(s), 4u);
    for (unsigned long capacity : {4, 4, 4, 5, 6, 7}) {
        s += 'x';
        EXPECT_EQ(UI::data_capacity(s), capacity) << "at size " << s.size();
    }
    s.append('y', 94);
    EXPECT_EQ(UI::data_capacity(s), 101u);
    s = "abc";
    EXPECT_EQ(UI::data_capacity(s), 4u);
    const ustring wide("abcdefghij");
    EXPECT_EQ(utf16_of(wide), u"abcdefghij");
    EXPECT_EQ(UI::wdata_capacity(wide), 11u);
}

TEST(Ustring, ConvertsAndNormalizesBeyondTheBmp)
{
    const char* utf8 = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";  // a, e-acute, euro, emoji
    const char16_t* utf16 = u"a\u00E9\u20AC\U0001F600";
    const ustring from_utf8(utf8);
    EXPECT_EQ(utf16_of(from_utf8), utf16);
    EXPECT_EQ(UI::wdata_len(from_utf8), 5u);
    EXPECT_STREQ(ustring(units(utf16)).c_str(), utf8);
    EXPECT_EQ(UI::wdata_len(ustring(from_utf8)), 0u);  // a copy starts underived

    ustring counted("x");  // counted UTF-16 appends count code units
    counted.append(units(utf16), 3);
    EXPECT_STREQ(counted.c_str(), "xa\xC3\xA9\xE2\x82\xAC");

    const ustring decomposed = ustring("\xC3\xA9").normalize(ustring::NFD);
    EXPECT_STREQ(decomposed.c_str(), "e\xCC\x81");
    EXPECT_STREQ(ustring::normalize(decomposed, ustring::NFC).c_str(), "\xC3\xA9");
}

TEST(Ustring, AppendsAndAssignsItself)
{
    ustring s(std::string(1000, 'q') + "end");  // growing moves the buffer it reads from
    s += s;
    EXPECT_EQ(s.size(), 2006u);
    EXPECT_EQ(s.substr(1000, 6), ustring("endqqq"));

    ustring t("abcdef");
    t.append(t, 2, 2);
    t.append(t.c_str(), 3);
    t = t;
    t.assign(t.c_str());
    EXPECT_STREQ(t.c_str(), "abcdefcdabc");
    t.assign(t.c_str(), 6);
    t.assign(t, 1, 3);
    EXPECT_STREQ(t.c_str(), "bcd");

    ustring wide("\xC3\xA9z");
    wide.append(wide.c_str_utf16());
    wide.assign(wide.c_str_utf16(), 3);
    EXPECT_STREQ(wide.c_str(), "\xC3\xA9z\xC3\xA9");
}

TEST(Ustring, SearchesStopAtTheEdges)
{
    const ustring s("abcdef"), abc("abc"), padded("ab  "), empty;
    const struct {
        const char* what;
        unsigned long got, want;
    } cases[] = {
        {"find empty", s.find("", 3), 3},          {"find past end", s.find('x', 6), npos},
        {"find empty at end", s.find("", 6), npos}, {"std::string ends at 0", s.find(std::string("e\0z", 3)), 4},
        {"first_of empty", s.find_first_of(""), npos}, {"first_not_of empty", s.find_first_not_of("", 0), 0},
        {"first_not_of all", s.find_first_not_of("abcdef"), npos},
        {"set bytes alone", ustring("a\xC3\xA8").find_first_of("\xC3\xA9"), 1},
        {"rfind empty", abc.rfind(""), 2},          {"rfind runs past start", abc.rfind("bc", 1), 1},
        {"rfind from 0", abc.rfind(std::string("bc"), 0), npos}, {"rfind pos past end", abc.rfind('a', 99), 0},
        {"last_not_of", padded.find_last_not_of(' '), 1}, {"last_not_of empty", padded.find_last_not_of(""), 3},
        {"last_of from", padded.find_last_of(" ", 1), npos}, {"last_of empty", padded.find_last_of(""), npos},
        {"empty rfind", empty.rfind(""), npos},     {"empty last_not_of", empty.find_last_not_of(""), npos},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.got, c.want) << c.what;
}

TEST(Ustring, ComparesBytesAsUnsignedAndFoldsOnlyAscii)
{
    EXPECT_EQ(ustring::compare("ABC", "abc", true), 0);
    EXPECT_NE(ustring::compare("\xC3\x84", "\xC3\xA4", true), 0);  // A and a with diaeresis
    EXPECT_EQ(ustring("ab").compare("abc"), -'c');
    EXPECT_EQ(ustring("abcX").compare("abcY", 3), 0);
    EXPECT_TRUE(ustring("\xC3\xA9") > ustring("z"));
    EXPECT_TRUE(ustring("ab") < ustring("abc"));
}

TEST(Ustring, Utf16FormStaysStaleOnlyAfterInPlaceEdits)
{
    ustring s("a/b");
    EXPECT_EQ(utf16_of(s), u"a/b");
    s.replace('/', '\\');
    s[0] = 'c';
    EXPECT_EQ(utf16_of(s), u"a/b");
    s.clear_wdata();
    EXPECT_EQ(utf16_of(s), u"c\\b");

    ustring t(" \t a b \t");  // trimming keeps the buffer but drops the UTF-16 form
    t.c_str_utf16();
    const unsigned long capacity = UI::data_capacity(t);
    EXPECT_STREQ(t.trim(" \t").c_str(), "a b");
    EXPECT_EQ(UI::data_capacity(t), capacity);
    EXPECT_EQ(utf16_of(t), u"a b");
    EXPECT_TRUE(ustring("  ").trim(" ").empty());

    ustring a("one"), b("two");  // swap exchanges the cached forms too
    a.c_str_utf16();
    swap(a, b);
    EXPECT_EQ(utf16_of(a), u"two");
    EXPECT_EQ(utf16_of(b), u"one");
}

TEST(Ustring, PositionsPastTheEndThrow)
{
    const ustring s("abc");
    EXPECT_TRUE(s.substr(3, npos).empty());
    EXPECT_EQ(s.substr(1, 100), ustring("bc"));
    ustring target("x");
    EXPECT_THROW(target.append(s, 4), std::out_of_range);
    EXPECT_THROW(target.assign(std::string("abc"), 4), std::out_of_range);
}

TEST(Ustring, FailedConversionsWarnAndEmptyTheFailedForm)
{
    const ustring invalid("\xC3\x28");
    EXPECT_FALSE(ustring::is_valid(invalid));
    EXPECT_TRUE(ustring::is_valid(ustring()));
    testing::internal::CaptureStderr();
    EXPECT_EQ(utf16_of(invalid), u"");
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::MatchesRegex("Warning: u_strFromUTF8: error code [0-9]+ at line 921\n"));
    EXPECT_STREQ(invalid.c_str(), "\xC3\x28");

    ustring lone("ab");
    testing::internal::CaptureStderr();
    lone += static_cast<unsigned short>(0xD800);
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::MatchesRegex("Warning: u_strToUTF8: error code [0-9]+ at line 888\n"));
    EXPECT_TRUE(lone.empty());
    EXPECT_EQ(UI::wdata_len(lone), 0u);
}

}  // namespace
