#include <gtest/gtest.h>

#include "VelmLocale.h"

// ":/enu.qm" and ":/deu.qm" are in two resource collections; the German one is switched off and on here.
static void setGermanCatalogueInstalled(bool on)
{
    if (on)
        Q_INIT_RESOURCE(locale_deu);
    else
        Q_CLEANUP_RESOURCE(locale_deu);
}

TEST(VelmLocale, MapsLocaleNamesToLanguages)
{
    const std::pair<const char*, const char*> languages[] = {
        {"en_US", "enu"}, {"zh_SG", "chs"}, {"zh_HK", "cht"}, {"zh_MO", "cht"}, {"pt_BR", "ptb"},
        {"pt", "ptg"},    {"pt_AO", "ptb"}, {"nn_NO", "nor"}, {"no", "nor"},    {"de_CH", "deu"},
        {"sv_FI", "sve"}, {"fi_FI", "enu"}, {"C", "enu"},     {"", "enu"}};
    for (const auto& [locale, language] : languages)
        EXPECT_EQ(VelmLocale::languageForLocaleName(locale).toStdString(), language) << locale;
}

// The toolkit reads the system locale once per process, so all that depends on it is in this one test.
TEST(VelmLocale, FollowsTheSystemLocaleUnlessItsCatalogueIsMissing)
{
    qputenv("LC_ALL", "de_DE.UTF-8");
    setGermanCatalogueInstalled(false);
    EXPECT_FALSE(VelmLocale::isLanguageInstalled(QStringLiteral("ENU")));
    EXPECT_EQ(VelmLocale::getDefaultLanguage().toStdString(), "enu");
    setGermanCatalogueInstalled(true);
    EXPECT_EQ(VelmLocale::getDefaultLanguage().toStdString(), "deu");
}
