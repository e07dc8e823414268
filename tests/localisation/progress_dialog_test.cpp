#include <gtest/gtest.h>

#include <QApplication>
#include <QIcon>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTranslator>

#include <memory>
#include <thread>

#include "notify-adapter.h"
#include "processing-progress-dialog.h"
#include "qt-printers.h"
#include "strtable.h"
#include "test-application.h"

namespace {

// The toolkit writes caches and settings below the home folder; keep them
// out of the real one.
class TemporaryHome : public ::testing::Environment {
public:
    void SetUp() override
    {
        home_.reset(new QTemporaryDir);
        ASSERT_TRUE(home_->isValid());
        qputenv("HOME", home_->path().toLocal8Bit());
        qputenv("XDG_RUNTIME_DIR", home_->path().toLocal8Bit());  // private, as required
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
            qunsetenv(name);
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    void TearDown() override { home_.reset(); }

private:
    std::unique_ptr<QTemporaryDir> home_;
};

const auto* const kHome = ::testing::AddGlobalTestEnvironment(new TemporaryHome);
const auto* const kApplication =
    ::testing::AddGlobalTestEnvironment(new ApplicationEnvironment<QApplication>);

class ProcessingProgressDialogTest : public ::testing::Test {
protected:
    void SetUp() override { StrTable::InitStrTable(); }
};

TEST_F(ProcessingProgressDialogTest, IsBuiltWithItsFixedLook)
{
    ProcessingProgressDialog dialog;
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Velmora Drovia"));
    EXPECT_EQ(dialog.labelText(), QStringLiteral("Drovia is initializing..."));
    EXPECT_EQ(dialog.minimum(), 0);
    EXPECT_EQ(dialog.maximum(), 100);
    EXPECT_EQ(dialog.value(), 0);
    EXPECT_EQ(dialog.minimumWidth(), 400);
    EXPECT_EQ(dialog.maximumWidth(), 400);
    EXPECT_EQ(dialog.font().family(), QStringLiteral("Arial"));
    EXPECT_EQ(dialog.windowFlags() & ~Qt::WindowType_Mask,
              Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.windowModality(), Qt::WindowModal);
    EXPECT_EQ(dialog.styleSheet().size(), 77);
    EXPECT_FALSE(dialog.isVisible());

    // The test executable's folder holds no bundle, hence no icon file: the
    // icon stays empty and the dialog opens all the same.
    EXPECT_TRUE(dialog.windowIcon().availableSizes().isEmpty());
    dialog.show();
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(ProcessingProgressDialogTest, ShowsTheTextsOfTheInstalledCatalogue)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(SAMPLE_CATALOGUE)));
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    {
        ProcessingProgressDialog dialog;
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Velmora Drovia (Deutsch)"));
        EXPECT_EQ(dialog.labelText(), QStringLiteral("Drovia wird initialisiert..."));
    }
    QCoreApplication::removeTranslator(&translator);
}

TEST(Notify_Adapter, RelaysReportsAsSignals)
{
    Notify_Adapter* relay = Notify_Adapter::GetInstance();
    QSignalSpy progress(relay, &Notify_Adapter::sigUpdateProgress);
    QSignalSpy text(relay, &Notify_Adapter::sigUpdateDialogText);

    relay->UpdateProgress(12, 1);
    relay->UpdateProgress(12, 12);
    relay->UpdateDialogText(QStringLiteral("Unpacking"));

    ASSERT_EQ(progress.count(), 2);
    EXPECT_EQ(progress.at(0), (QList<QVariant>{12, 1}));
    EXPECT_EQ(progress.at(1), (QList<QVariant>{12, 12}));
    ASSERT_EQ(text.count(), 1);
    EXPECT_EQ(text.at(0).at(0).toString(), QStringLiteral("Unpacking"));
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
