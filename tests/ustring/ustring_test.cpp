#include "ustring.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

class UstringInspector {
public:
    static unsigned long data_capacity(const ustring& s) { return s.data_capacity; }
    static unsigned long wdata_capacity(const ustring& s) { return s.wdata_capacity; }
    // Both forms by their recorded lengths, which their terminators would hide.
    static std::string bytes(const ustring& s) { return std::string(s.c_str(), s.size()); }
    static std::u16string units(const ustring& s)
    {
        s.c_str_utf16();  // derives the form if it is not current
        return std::u16string(reinterpret_cast<const char16_t*>(s.wdata), s.wdata_len);
    }
};
using UI = UstringInspector;

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
    EXPECT_EQ(UI::units(wide), u"abcdefghij");
    EXPECT_EQ(UI::wdata_capacity(wide), 11u);
}

TEST(Ustring, ConvertsAndNormalizesBeyondTheBmp)
{
    const char* utf8 = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";  // a, e-acute, euro, emoji
    const char16_t* utf16 = u"a\u00E9\u20AC\U0001F600";
    EXPECT_EQ(UI::units(ustring(utf8)), utf16);
    EXPECT_EQ(UI::bytes(ustring(reinterpret_cast<const unsigned short*>(utf16))), utf8);
    const ustring decomposed = ustring("\xC3\xA9").normalize(ustring::NFD);
    EXPECT_EQ(UI::bytes(decomposed), "e\xCC\x81");
    EXPECT_EQ(UI::bytes(ustring::normalize(decomposed, ustring::NFC)), "\xC3\xA9");
}

TEST(Ustring, InPlaceEditsLeaveTheUtf16FormStaleUntilCleared)
{
    ustring s("a/b");
    EXPECT_EQ(UI::units(s), u"a/b");
    s.replace('/', '\\');
    s[0] = 'c';
    EXPECT_EQ(UI::units(s), u"a/b");
    s.clear_wdata();
    EXPECT_EQ(UI::units(s), u"c\\b");
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
    EXPECT_EQ(UI::bytes(t), "abcdefcdabc");
    t.assign(t, 1, 3);
    EXPECT_EQ(UI::bytes(t), "bcd");
    ustring wide("\xC3\xA9z");
    wide.append(wide.c_str_utf16());
    wide.assign(wide.c_str_utf16(), 3);
    EXPECT_EQ(UI::bytes(wide), "\xC3\xA9z\xC3\xA9");
}

TEST(Ustring, SearchesTrimsAndComparesBytesUpToTheEdges)
{
    const ustring s("abcdef"), abc("abc"), padded("ab  "), empty;
    const unsigned long npos = ustring::npos;
    EXPECT_EQ(s.find("", 3), 3u);
    EXPECT_EQ(s.find('x', 6), npos);
    EXPECT_EQ(s.find("", 6), npos);
    EXPECT_EQ(s.find(std::string("e\0z", 3)), 4u);
    EXPECT_EQ(s.find_first_of(""), npos);
    EXPECT_EQ(s.find_first_not_of("", 0), 0u);
    EXPECT_EQ(s.find_first_not_of("abcdef"), npos);
    EXPECT_EQ(ustring("a\xC3\xA8").find_first_of("\xC3\xA9"), 1u);
    EXPECT_EQ(abc.rfind(""), 2u);
    EXPECT_EQ(abc.rfind("bc", 1), 1u);
    EXPECT_EQ(abc.rfind(std::string("bc"), 0), npos);
    EXPECT_EQ(abc.rfind('a', 99), 0u);
    EXPECT_EQ(padded.find_last_not_of(' '), 1u);
    EXPECT_EQ(padded.find_last_not_of(""), 3u);
    EXPECT_EQ(padded.find_last_of(" ", 1), npos);
    EXPECT_EQ(padded.find_last_of(""), npos);
    EXPECT_EQ(empty.rfind(""), npos);
    EXPECT_EQ(empty.find_last_not_of(""), npos);

    ustring blanks(" \t a b \t"), xs("xxaxx"), ys("yyayy");
    EXPECT_EQ(UI::units(blanks).size(), 8u);  // trimming drops this form
    EXPECT_EQ(UI::units(blanks.trim(" \t").trim("")), u"a b");
    EXPECT_EQ(UI::bytes(xs.ltrim("x")) + UI::bytes(ys.rtrim(ustring("y"))), "axxyya");
    EXPECT_EQ(UI::bytes(padded.substr(2).ltrim(" ")), "");
    EXPECT_TRUE(ustring::compare("AZ", "az", true) == 0 && ustring::compare("@", "`", true) &&
                ustring::compare("[", "{", true) && ustring::compare("\xC3\x84", "\xC3\xA4", true));
    EXPECT_TRUE(ustring("\xC3\xA9") > ustring("z") && ustring("ab") < abc && abc < ustring("b"));
    EXPECT_TRUE(abc.compare("abcd") < 0 && abc.compare("abX", 2) == 0);
}

TEST(Ustring, FailedConversionsWarnAndEmptyTheFailedForm)
{
    const ustring invalid("\xC3\x28");
    testing::internal::CaptureStderr();
    EXPECT_EQ(UI::units(invalid), u"");
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::MatchesRegex("Warning: u_strFromUTF8: error code [0-9]+ at line 921\n"));
    ustring lone("ab");
    testing::internal::CaptureStderr();
    lone += static_cast<unsigned short>(0xD800);
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::MatchesRegex("Warning: u_strToUTF8: error code [0-9]+ at line 888\n"));
    EXPECT_TRUE(lone.empty() && UI::units(lone).empty());
}
