#include <gtest/gtest.h>

#include <QString>

#include "message-capture.h"
#include "qt-printers.h"
#include "VelmLocale.h"

namespace {

TEST(VelmLocale, MapsLocaleNamesToLanguages)
{
    const struct {
        const char* localeName;
        const char* language;
    } cases[] = {
        {"en_US", "enu"}, {"zh_CN", "chs"}, {"zh_SG", "chs"}, {"zh_TW", "cht"},
        {"zh_HK", "cht"}, {"zh_MO", "cht"}, {"pt_BR", "ptb"}, {"pt_PT", "ptg"},
        {"pt", "ptg"},    {"nb_NO", "nor"}, {"nn_NO", "nor"}, {"no", "nor"},
        {"de_AT", "deu"}, {"de_CH", "deu"}, {"sv_FI", "sve"}, {"fi_FI", "enu"},
        {"el_GR", "enu"}, {"C", "enu"},     {"ja_JP", "jpn"}, {"ko_KR", "krn"},
        {"cs_CZ", "csy"}, {"zh", "chs"},    {"pt_AO", "ptb"}, {"", "enu"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(VelmLocale::languageForLocaleName(QString::fromLatin1(c.localeName)),
                  QString::fromLatin1(c.language))
            << c.localeName;
    }
}

TEST(VelmLocale, NamesTheTwentyLanguagesByID)
{
    const QList<QString> languages = VelmLocale::getSupportedLanguages();
    ASSERT_EQ(languages.size(), 20);
    EXPECT_EQ(languages.mid(0, 3), (QList<QString>{"enu", "cht", "chs"}));
    EXPECT_EQ(languages.mid(18), (QList<QString>{"trk", "csy"}));
    for (int id = 0; id < languages.size(); ++id)
        EXPECT_EQ(VelmLocale::getLanguageAbbrByID(id), languages.at(id));
    EXPECT_TRUE(VelmLocale::getLanguageAbbrByID(20).isEmpty());
    EXPECT_TRUE(VelmLocale::getLanguageAbbrByID(21).isEmpty());
    EXPECT_TRUE(VelmLocale::getLanguageAbbrByID(-1).isEmpty());
    EXPECT_EQ(VelmLocale::getStrLanguageFallSafe(), QStringLiteral("enu"));
}

// The test resources hold ":/enu.qm" and nothing else at the root.
TEST(VelmLocale, FindsInstalledCataloguesByExactName)
{
    MessageCapture capture;
    EXPECT_FALSE(VelmLocale::isLanguageInstalled(QStringLiteral("ENU")));
    EXPECT_FALSE(VelmLocale::isLanguageInstalled(QStringLiteral("deu")));
    EXPECT_TRUE(MessageCapture::messages().empty());

    EXPECT_TRUE(VelmLocale::isLanguageInstalled(QStringLiteral("enu")));
    ASSERT_EQ(MessageCapture::messages().size(), 1u);
    const CapturedMessage& message = MessageCapture::messages().front();
    EXPECT_EQ(message.type, QtDebugMsg);
    EXPECT_EQ(message.file, QByteArray("../libcommon/VelmLocale"));
    EXPECT_EQ(message.line, 161);
    EXPECT_EQ(message.category, QByteArray("default"));
    EXPECT_EQ(message.text,
              QStringLiteral("../libcommon/VelmLocale:161 qPrintable(qstrLangFileName)=[:/enu.qm] "));
}

}  // namespace
