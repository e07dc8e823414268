#include <gtest/gtest.h>

#include "VelmLocale.h"
#include "qt-test-support.h"

namespace {

TEST(VelmLocale, MapsLocaleNamesToLanguages)
{
    const char* const cases[][2] = {
        {"en_US", "enu"}, {"zh_CN", "chs"}, {"zh_SG", "chs"}, {"zh_TW", "cht"}, {"zh_HK", "cht"},
        {"zh_MO", "cht"}, {"pt_BR", "ptb"}, {"pt_PT", "ptg"}, {"pt", "ptg"},    {"pt_AO", "ptb"},
        {"nb_NO", "nor"}, {"nn_NO", "nor"}, {"no", "nor"},    {"de_AT", "deu"}, {"de_CH", "deu"},
        {"sv_FI", "sve"}, {"fi_FI", "enu"}, {"el_GR", "enu"}, {"C", "enu"},     {"", "enu"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(VelmLocale::languageForLocaleName(c[0]), QString(c[1])) << c[0];
}

TEST(VelmLocale, NamesTheTwentyLanguagesByID)
{
    const QList<QString> languages = VelmLocale::getSupportedLanguages();
    ASSERT_EQ(languages.size(), 20);
    EXPECT_EQ(languages.mid(0, 3), (QList<QString>{"enu", "cht", "chs"}));
    EXPECT_EQ(languages.mid(18), (QList<QString>{"trk", "csy"}));
    for (int id = 0; id < languages.size(); ++id)
        EXPECT_EQ(VelmLocale::getLanguageAbbrByID(id), languages.at(id));
    for (int id : {20, 21, -1})
        EXPECT_TRUE(VelmLocale::getLanguageAbbrByID(id).isEmpty()) << id;
    EXPECT_EQ(VelmLocale::getStrLanguageFallSafe(), QStringLiteral("enu"));
}

// The test resources hold ":/enu.qm" and nothing else at the root.
TEST(VelmLocale, FindsInstalledCataloguesByExactName)
{
    MessageCapture capture;
    EXPECT_FALSE(VelmLocale::isLanguageInstalled(QStringLiteral("ENU")));
    EXPECT_FALSE(VelmLocale::isLanguageInstalled(QStringLiteral("deu")));
    EXPECT_TRUE(MessageCapture::lines().empty());

    EXPECT_TRUE(VelmLocale::isLanguageInstalled(QStringLiteral("enu")));
    const MessageCapture::Lines expected = {
        {161, "../libcommon/VelmLocale:161 qPrintable(qstrLangFileName)=[:/enu.qm] "}};
    EXPECT_EQ(MessageCapture::lines(), expected);
}

}  // namespace
