#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSet>
#include <QTranslator>

#include "qt-printers.h"
#include "strtable.h"
#include "test-application.h"

namespace {

const auto* const kApplication =
    ::testing::AddGlobalTestEnvironment(new ApplicationEnvironment<QCoreApplication>);

constexpr int kStringCount = 467;

class StrTableTest : public ::testing::Test {
protected:
    void SetUp() override { StrTable::InitStrTable(); }
};

TEST_F(StrTableTest, LoadsTheEnglishTextsWithoutATranslator)
{
    EXPECT_EQ(StrTable::LoadStr(202), QStringLiteral("Velmora Drovia"));
    EXPECT_EQ(StrTable::LoadStr(393), QStringLiteral("Drovia is initializing..."));
    EXPECT_EQ(StrTable::LoadStr(465), QStringLiteral("Drovia is ready."));
    EXPECT_EQ(StrTable::LoadStr(24), QStringLiteral("Upgrading..."));
    EXPECT_EQ(StrTable::LoadStr(45), QStringLiteral("Processing %1 file(s)..."));
    EXPECT_EQ(StrTable::LoadStr(6), QStringLiteral("Please wait while the Setup Wizard installs "
                                                   "[ProductName].  This may take several minutes."));
    EXPECT_EQ(StrTable::LoadStr(29), QStringLiteral("Automatically &close applications and attempt "
                                                    "to restart them after setup is complete."));

    // Keys that name the same text share it; the catalogues hold one
    // message per distinct text.
    QSet<QString> texts;
    for (int id = 0; id < kStringCount; ++id) {
        const QString text = StrTable::LoadStr(id);
        EXPECT_FALSE(text.trimmed().isEmpty()) << id;
        EXPECT_FALSE(text.contains(QLatin1Char('\\'))) << id;
        texts.insert(text);
    }
    EXPECT_EQ(texts.size(), 425);
}

TEST_F(StrTableTest, LoadsTranslationsOfTheInstalledCatalogue)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(SAMPLE_CATALOGUE)));
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));

    EXPECT_EQ(StrTable::LoadStr(393), QStringLiteral("Drovia wird initialisiert..."));
    EXPECT_EQ(StrTable::LoadStr(465), QString::fromUtf8("Drovia ist bereit.\n\tViel Spaß!"));
    EXPECT_EQ(StrTable::LoadStr(45), QStringLiteral("%1 Datei(en) werden verarbeitet..."));
    EXPECT_EQ(StrTable::LoadStr(24), QStringLiteral("Upgrading..."));  // not in the catalogue
    EXPECT_EQ(QCoreApplication::translate("other", "Drovia is ready.", nullptr, -1),
              QStringLiteral("Drovia is ready."));

    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ(StrTable::LoadStr(465), QStringLiteral("Drovia is ready."));
}

TEST_F(StrTableTest, LooksUpKeysIgnoringCase)
{
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("app_name")), 202);
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("APP_NAME")), 202);
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("nsis_not_admin_confirm")), 284);
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("msi_ready_dlg_text")), 0);
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("management_proxy_cancel_btn")), 466);
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("no_such_key")), -1);
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("app_name ")), -1);
    EXPECT_EQ(StrTable::LookupStrID(QString()), -1);
}

}  // namespace
