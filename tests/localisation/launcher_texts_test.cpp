#include <gtest/gtest.h>

#include <QApplication>
#include <QIcon>
#include <QTemporaryDir>
#include <QTranslator>

#include <memory>
#include <thread>

#include "notify-adapter.h"
#include "processing-progress-dialog.h"
#include "strtable.h"

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

namespace {

// The toolkit keeps caches and settings under HOME, which points into a
// temporary folder for as long as the application lives.
struct ApplicationEnvironment : ::testing::Environment {
    void SetUp() override
    {
        ASSERT_TRUE(home.isValid());
        for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
            qputenv(name, home.path().toLocal8Bit());
        application = std::make_unique<QApplication>(argc, argv);
        StrTable::InitStrTable();
    }
    void TearDown() override { application.reset(); }
    QTemporaryDir home;
    int argc = 1;
    char name[16] = "drovia-test";
    char* argv[2] = {name, nullptr};
    std::unique_ptr<QApplication> application;
};
const auto* const kApplication = ::testing::AddGlobalTestEnvironment(new ApplicationEnvironment);

TEST(StrTable, LoadsEnglishOrTheInstalledTranslationWithRealEscapes)
{
    EXPECT_EQ(StrTable::LoadStr(202), QStringLiteral("Velmora Drovia"));
    EXPECT_EQ(StrTable::LoadStr(6), QStringLiteral("Please wait while the Setup Wizard installs "
                                                   "[ProductName].  This may take several minutes."));
    EXPECT_EQ(StrTable::LoadStr(465), QStringLiteral("Drovia is ready."));

    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(SAMPLE_CATALOGUE)));
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    EXPECT_EQ(StrTable::LoadStr(393), QStringLiteral("Drovia wird initialisiert..."));
    EXPECT_EQ(StrTable::LoadStr(465), QString::fromUtf8("Drovia ist bereit.\n\tViel Spaß!"));
    EXPECT_EQ(StrTable::LoadStr(45), QStringLiteral("%1 Datei(en) werden verarbeitet..."));
    EXPECT_EQ(StrTable::LoadStr(24), QStringLiteral("Upgrading..."));  // not in the sample
    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ(StrTable::LoadStr(465), QStringLiteral("Drovia is ready."));
}

TEST(StrTable, LooksUpKeysIgnoringCase)
{
    const std::pair<const char*, int> cases[] = {
        {"APP_NAME", 202}, {"nsis_not_admin_confirm", 284}, {"msi_ready_dlg_text", 0},
        {"management_proxy_cancel_btn", 466}, {"app_name ", -1}, {"no_such_key", -1}};
    for (const auto& [key, id] : cases)
        EXPECT_EQ(StrTable::LookupStrID(QString::fromLatin1(key)), id) << key;
}

TEST(ProcessingProgressDialog, OpensWithItsTitleTextAndRangeEvenWithoutAnIcon)
{
    ProcessingProgressDialog dialog;
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Velmora Drovia"));
    EXPECT_EQ(dialog.labelText(), QStringLiteral("Drovia is initializing..."));
    EXPECT_EQ(std::make_pair(dialog.minimum(), dialog.maximum()), std::make_pair(0, 100));
    EXPECT_EQ(dialog.value(), 0);
    EXPECT_EQ(dialog.minimumWidth(), 400);
    EXPECT_EQ(dialog.maximumWidth(), 400);
    EXPECT_EQ(dialog.windowFlags() & ~Qt::WindowType_Mask, Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    // The test executable's folder holds no bundle, hence no icon file.
    EXPECT_TRUE(dialog.windowIcon().availableSizes().isEmpty());
    dialog.show();
    EXPECT_TRUE(dialog.isVisible());
}

TEST(Notify_Adapter, IsOneInstanceForEveryThread)
{
    Notify_Adapter* fromFirst = nullptr;
    Notify_Adapter* fromSecond = nullptr;
    std::thread first([&fromFirst] { fromFirst = Notify_Adapter::GetInstance(); });
    std::thread second([&fromSecond] { fromSecond = Notify_Adapter::GetInstance(); });
    first.join();
    second.join();
    ASSERT_NE(fromFirst, nullptr);
    EXPECT_EQ(fromFirst, fromSecond);
    EXPECT_EQ(fromFirst, Notify_Adapter::GetInstance());
}

}  // namespace
