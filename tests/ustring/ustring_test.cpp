#include "ustring.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

class UstringInspector {
public:
    static unsigned long data_capacity(const ustring& s) { return s.data_capacity; }
    static unsigned long wdata_capacity(const ustring& s) { return s.wdata_capacity; }
    static unsigned long wdata_len(const ustring& s) { return s.wdata_len; }
};
using UI = UstringInspector;
static std::u16string utf16_of(const ustring& s)
{
    return reinterpret_cast<const char16_t*>(s.c_str_utf16());
}

TEST(Ustring, GrowsToExactFitAndShrinksWhenUnderHalfUsed)
{
    ustring s;
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

TEST(Ustring, ConvertsAndNormalizesBeyondTheBmpAndKeepsUtf16StaleAfterInPlaceEdits)
{
    const char* utf8 = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";  // a, e-acute, euro, emoji
    const char16_t* utf16 = u"a\u00E9\u20AC\U0001F600";
    EXPECT_EQ(utf16_of(ustring(utf8)), utf16);
    EXPECT_STREQ(ustring(reinterpret_cast<const unsigned short*>(utf16)).c_str(), utf8);
    const ustring decomposed = ustring("\xC3\xA9").normalize(ustring::NFD);
    EXPECT_STREQ(decomposed.c_str(), "e\xCC\x81");
    EXPECT_STREQ(ustring::normalize(decomposed, ustring::NFC).c_str(), "\xC3\xA9");

    // In-place edits leave the UTF-16 form stale until it is cleared.
    ustring s("a/b");
    EXPECT_EQ(utf16_of(s), u"a/b");
    s.replace('/', '\\');
    s[0] = 'c';
    EXPECT_EQ(utf16_of(s), u"a/b");
    s.clear_wdata();
    EXPECT_EQ(utf16_of(s), u"c\\b");
}

TEST(Ustring, AppendsAndAssignsItself)
{
    ustring s(std::string(1000, 'q') + "end");  // growing moves the buffer it reads from
    s += s;
    EXPECT_EQ(s.substr(1000, 6), ustring("endqqq"));
    ustring t("abcdef");
    t.append(t, 2, 2);
    t.append(t.c_str(), 3);
    t = t;
    t.assign(t.c_str());
    EXPECT_STREQ(t.c_str(), "abcdefcdabc");
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
    const unsigned long npos = ustring::npos,
                        cases[][2] = {{s.find("", 3), 3},
                                      {s.find('x', 6), npos},
                                      {s.find("", 6), npos},
                                      {s.find(std::string("e\0z", 3)), 4},
                                      {s.find_first_of(""), npos},
                                      {s.find_first_not_of("", 0), 0},
                                      {s.find_first_not_of("abcdef"), npos},
                                      {ustring("a\xC3\xA8").find_first_of("\xC3\xA9"), 1},
                                      {abc.rfind(""), 2},
                                      {abc.rfind("bc", 1), 1},
                                      {abc.rfind(std::string("bc"), 0), npos},
                                      {abc.rfind('a', 99), 0},
                                      {padded.find_last_not_of(' '), 1},
                                      {padded.find_last_not_of(""), 3},
                                      {padded.find_last_of(" ", 1), npos},
                                      {padded.find_last_of(""), npos},
                                      {empty.rfind(""), npos},
                                      {empty.find_last_not_of(""), npos}};
    for (const auto& c : cases)
        EXPECT_EQ(c[0], c[1]) << "case " << &c - cases;
}

TEST(Ustring, FailedConversionsWarnAndEmptyTheFailedForm)
{
    const ustring invalid("\xC3\x28");
    testing::internal::CaptureStderr();
    EXPECT_EQ(utf16_of(invalid), u"");
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::MatchesRegex("Warning: u_strFromUTF8: error code [0-9]+ at line 921\n"));
    ustring lone("ab");
    testing::internal::CaptureStderr();
    lone += static_cast<unsigned short>(0xD800);
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::MatchesRegex("Warning: u_strToUTF8: error code [0-9]+ at line 888\n"));
    EXPECT_TRUE(lone.empty() && UI::wdata_len(lone) == 0u);
}
