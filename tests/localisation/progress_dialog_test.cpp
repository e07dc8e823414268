#include <gtest/gtest.h>

#include <QApplication>
#include <QIcon>
#include <QSignalSpy>

#include <thread>

#include "notify-adapter.h"
#include "processing-progress-dialog.h"
#include "qt-test-support.h"
#include "strtable.h"

namespace {

const auto* const kApplication =
    ::testing::AddGlobalTestEnvironment(new ApplicationEnvironment<QApplication>);

TEST(ProcessingProgressDialog, IsBuiltWithItsFixedLook)
{
    StrTable::InitStrTable();
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
    EXPECT_EQ(dialog.windowModality(), Qt::WindowModal);
    EXPECT_EQ(dialog.styleSheet().size(), 77);

    // The test executable's folder holds no bundle, hence no icon file: the
    // icon stays empty and the dialog opens all the same.
    EXPECT_TRUE(dialog.windowIcon().availableSizes().isEmpty());
    dialog.show();
    EXPECT_TRUE(dialog.isVisible());
}

TEST(Notify_Adapter, RelaysReportsAsSignals)
{
    Notify_Adapter* relay = Notify_Adapter::GetInstance();
    QSignalSpy progress(relay, &Notify_Adapter::sigUpdateProgress);
    QSignalSpy text(relay, &Notify_Adapter::sigUpdateDialogText);

    relay->UpdateProgress(12, 1);
    relay->UpdateDialogText(QStringLiteral("Unpacking"));

    EXPECT_EQ(progress, (QList<QList<QVariant>>{{12, 1}}));
    EXPECT_EQ(text, (QList<QList<QVariant>>{{QStringLiteral("Unpacking")}}));
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
