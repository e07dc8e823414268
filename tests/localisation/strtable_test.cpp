#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

#include "qt-test-support.h"
#include "strtable.h"

namespace {

const auto* const kApplication =
    ::testing::AddGlobalTestEnvironment(new ApplicationEnvironment<QCoreApplication>);

class StrTableTest : public ::testing::Test {
protected:
    void SetUp() override { StrTable::InitStrTable(); }
};

TEST_F(StrTableTest, LoadsTheEnglishTextsWithoutATranslator)
{
    EXPECT_EQ(StrTable::LoadStr(202), QStringLiteral("Velmora Drovia"));
    EXPECT_EQ(StrTable::LoadStr(393), QStringLiteral("Drovia is initializing..."));
    EXPECT_EQ(StrTable::LoadStr(465), QStringLiteral("Drovia is ready."));
    EXPECT_EQ(StrTable::LoadStr(6), QStringLiteral("Please wait while the Setup Wizard installs "
                                                   "[ProductName].  This may take several minutes."));
}

TEST_F(StrTableTest, LoadsTranslationsWithRealLineBreaksAndTabs)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(SAMPLE_CATALOGUE)));
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));

    EXPECT_EQ(StrTable::LoadStr(393), QStringLiteral("Drovia wird initialisiert..."));
    EXPECT_EQ(StrTable::LoadStr(465), QString::fromUtf8("Drovia ist bereit.\n\tViel Spaß!"));
    EXPECT_EQ(StrTable::LoadStr(45), QStringLiteral("%1 Datei(en) werden verarbeitet..."));
    EXPECT_EQ(StrTable::LoadStr(24), QStringLiteral("Upgrading..."));  // not in the catalogue
    EXPECT_EQ(QCoreApplication::translate("other", "Drovia is ready."),
              QStringLiteral("Drovia is ready."));

    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ(StrTable::LoadStr(465), QStringLiteral("Drovia is ready."));
}

TEST_F(StrTableTest, LooksUpKeysIgnoringCase)
{
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("APP_NAME")), 202);
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("nsis_not_admin_confirm")), 284);
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("msi_ready_dlg_text")), 0);
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("management_proxy_cancel_btn")), 466);
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("app_name ")), -1);
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("no_such_key")), -1);
}

}  // namespace
