#include <gtest/gtest.h>

#include "VelmLocale.h"
#include "qt-test-support.h"

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

using Lines = MessageCapture::Lines;

// The toolkit reads the system locale once per process, so everything that
// depends on it is in this one test.
TEST(DefaultLanguage, FollowsTheSystemLocaleUnlessItsCatalogueIsMissing)
{
    qputenv("LC_ALL", "de_DE.UTF-8");
    const QString file = QStringLiteral("../libcommon/VelmLocale:");
    const Lines localeLines = {{64, file + "64 qPrintable(qstrLocaleLower)=[de_de\n] "},
                               {80, file + "80 qPrintable(qstrLocaleLower)=[de_de] "}};

    setGermanCatalogueInstalled(false);
    {
        MessageCapture capture;
        EXPECT_EQ(VelmLocale::getDefaultLanguage(), QStringLiteral("enu"));
        Lines expected = localeLines;
        expected.emplace_back(138, file + "138 qPrintable(qstrDef)=[enu\n] ");
        EXPECT_EQ(MessageCapture::lines(), expected);
    }

    setGermanCatalogueInstalled(true);
    {
        MessageCapture capture;
        EXPECT_EQ(VelmLocale::getDefaultLanguage(), QStringLiteral("deu"));
        Lines expected = localeLines;
        expected.emplace_back(161, file + "161 qPrintable(qstrLangFileName)=[:/deu.qm] ");
        expected.emplace_back(138, file + "138 qPrintable(qstrDef)=[deu\n] ");
        EXPECT_EQ(MessageCapture::lines(), expected);
    }
}

}  // namespace
