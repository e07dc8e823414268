#include <gtest/gtest.h>

#include "VelmLocale.h"

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

// The test resources hold ":/enu.qm" in one collection and ":/deu.qm" in
// another, which is switched off and on here.
static void setGermanCatalogueInstalled(bool installed)
{
    if (installed)
        Q_INIT_RESOURCE(locale_deu);
    else
        Q_CLEANUP_RESOURCE(locale_deu);
}

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

TEST(VelmLocale, NamesTheTwentyLanguagesByIDAndNothingOutside)
{
    const QList<QString> languages = VelmLocale::getSupportedLanguages();
    ASSERT_EQ(languages.size(), 20);
    for (int id = 0; id < languages.size(); ++id)
        EXPECT_EQ(VelmLocale::getLanguageAbbrByID(id), languages.at(id));
    EXPECT_EQ(languages.first(), VelmLocale::getStrLanguageFallSafe());
    for (int id : {20, -1})
        EXPECT_TRUE(VelmLocale::getLanguageAbbrByID(id).isEmpty()) << id;
}

// The toolkit reads the system locale once per process, so everything that
// depends on it is in this one test.
TEST(VelmLocale, FollowsTheSystemLocaleUnlessItsCatalogueIsMissing)
{
    qputenv("LC_ALL", "de_DE.UTF-8");
    setGermanCatalogueInstalled(false);
    EXPECT_FALSE(VelmLocale::isLanguageInstalled(QStringLiteral("deu")));
    EXPECT_FALSE(VelmLocale::isLanguageInstalled(QStringLiteral("ENU")));
    EXPECT_TRUE(VelmLocale::isLanguageInstalled(QStringLiteral("enu")));
    EXPECT_EQ(VelmLocale::getDefaultLanguage(), QStringLiteral("enu"));

    setGermanCatalogueInstalled(true);
    EXPECT_EQ(VelmLocale::getDefaultLanguage(), QStringLiteral("deu"));
}

}  // namespace
