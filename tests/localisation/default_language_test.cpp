#include <gtest/gtest.h>

#include <QStringList>

#include "message-capture.h"
#include "qt-printers.h"
#include "VelmLocale.h"

// The test resources hold ":/enu.qm" in one collection and ":/deu.qm" in
// another, which is switched on and off here.
static void installGermanCatalogue()
{
    Q_INIT_RESOURCE(locale_german);
}

static void removeGermanCatalogue()
{
    Q_CLEANUP_RESOURCE(locale_german);
}

namespace {

QStringList capturedTexts()
{
    QStringList texts;
    for (const CapturedMessage& message : MessageCapture::messages())
        texts.append(message.text);
    return texts;
}

// The toolkit reads the system locale once per process, so everything that
// depends on it is in this one test.
TEST(DefaultLanguage, FollowsTheSystemLocaleUnlessItsCatalogueIsMissing)
{
    qputenv("LC_ALL", "de_DE.UTF-8");
    const QString prefix = QStringLiteral("../libcommon/VelmLocale:");

    removeGermanCatalogue();
    {
        MessageCapture capture;
        EXPECT_EQ(VelmLocale::getDefaultLanguage(), QStringLiteral("enu"));
        EXPECT_EQ(capturedTexts(),
                  (QStringList{prefix + "64 qPrintable(qstrLocaleLower)=[de_de\n] ",
                               prefix + "80 qPrintable(qstrLocaleLower)=[de_de] ",
                               prefix + "138 qPrintable(qstrDef)=[enu\n] "}));
    }

    installGermanCatalogue();
    {
        MessageCapture capture;
        EXPECT_EQ(VelmLocale::getDefaultLanguage(), QStringLiteral("deu"));
        EXPECT_EQ(capturedTexts(),
                  (QStringList{prefix + "64 qPrintable(qstrLocaleLower)=[de_de\n] ",
                               prefix + "80 qPrintable(qstrLocaleLower)=[de_de] ",
                               prefix + "161 qPrintable(qstrLangFileName)=[:/deu.qm] ",
                               prefix + "138 qPrintable(qstrDef)=[deu\n] "}));
    }
}

}  // namespace
