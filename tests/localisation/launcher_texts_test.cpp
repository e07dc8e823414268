#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QTranslator>

#include "strtable.h"

TEST(StrTable, LoadsEnglishOrTheInstalledTranslationWithRealEscapes)
{
    int argc = 1;
    char name[] = "texts", *argv[] = {name, nullptr};
    QCoreApplication application(argc, argv);
    StrTable::InitStrTable();
    EXPECT_EQ(StrTable::LoadStr(6).toStdString(),
              "Please wait while the Setup Wizard installs [ProductName].  This may take several minutes.");
    EXPECT_EQ(StrTable::LoadStr(465).toStdString(), "Drovia is ready.");
    QTranslator translator;  // a German sample in which message 465 holds "\n\t" and "ß"
    ASSERT_TRUE(translator.load(QStringLiteral(SAMPLE_CATALOGUE)) &&
                QCoreApplication::installTranslator(&translator));
    EXPECT_EQ(StrTable::LoadStr(465).toStdString(), "Drovia ist bereit.\n\tViel Spaß!");
    EXPECT_EQ(StrTable::LoadStr(45).toStdString(), "%1 Datei(en) werden verarbeitet...");
    EXPECT_EQ(StrTable::LoadStr(24).toStdString(), "Upgrading...");  // not in the sample
    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ(StrTable::LoadStr(465).toStdString(), "Drovia is ready.");
}

TEST(StrTable, LooksUpKeysIgnoringCase)
{
    StrTable::InitStrTable();
    const std::pair<const char*, int> ids[] = {
        {"APP_NAME", 202},         {"nsis_not_admin_confirm", 284},
        {"msi_ready_dlg_text", 0}, {"management_proxy_cancel_btn", 466},
        {"app_name ", -1},         {"no_such_key", -1}};
    for (const auto& [key, id] : ids)
        EXPECT_EQ(StrTable::LookupStrID(QString::fromLatin1(key)), id) << key;
}
