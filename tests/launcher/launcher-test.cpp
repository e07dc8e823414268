#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <memory>
#include <thread>

#include "cloud-service.h"
#include "launcher.h"
#include "log.h"
#include "notify-adapter.h"
#include "strtable.h"
#include "worker.h"

namespace {

std::atomic<bool> upgrade_may_finish{true};

// Steps go to the shared log, so that one file shows the launcher's lines and
// the service's steps in the order they happened.
class FakeService : public Service {
public:
    FakeService(bool need_upgrade, int result) : need_upgrade(need_upgrade), result(result) {}
    ~FakeService() override { step("destroyed"); }
    void StopService() override { step("StopService"); }
    void PreUpgrade() override { step("PreUpgrade"); }
    void PostUpgrade() override { step("PostUpgrade"); }
    bool IsNeedUpgrade() override
    {
        step("IsNeedUpgrade");
        return need_upgrade;
    }
    int HandlePackageUpgrade() override
    {
        step("HandlePackageUpgrade");
        while (!upgrade_may_finish)
            QThread::msleep(5);
        return result;
    }

private:
    static void step(const char* name)
    {
        Logger::LogMsg(Logger::LEVEL_DEBUG, "service_debug", "[DEBUG] fake(1): %s\n", name);
    }
    bool need_upgrade;
    int result;
};

struct TestWorker : Worker {
    explicit TestWorker(bool need_upgrade, int result) : Worker(new FakeService(need_upgrade, result)) {}
};
struct TestLauncher : Launcher {
    explicit TestLauncher(Worker* worker) : Launcher(worker) {}
};

QTemporaryDir home;
QString logPath() { return home.filePath("launcher.log"); }

// The toolkit and the logger are process-wide: one application, one home and
// one log for the whole binary.
struct LauncherEnvironment : ::testing::Environment {
    void SetUp() override
    {
        ASSERT_TRUE(home.isValid());
        qputenv("HOME", home.path().toUtf8());
        const QString levels = home.filePath("launcher.debug");
        QFile file(levels);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("launcher_debug=7\nservice_debug=7\n") > 0);
        file.close();
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, logPath().toUtf8().constData(),
                                     levels.toUtf8().constData(), 50), 0);
        app = std::make_unique<QApplication>(argc, argv);
        StrTable::InitStrTable();
    }
    void TearDown() override
    {
        app.reset();
        Logger::Destroy();
    }
    int argc = 1;
    char name[16] = "launcher_test";
    char* argv[2] = {name, nullptr};
    std::unique_ptr<QApplication> app;
};
::testing::Environment* const environment = ::testing::AddGlobalTestEnvironment(new LauncherEnvironment);

// "Nov 16 20:31:15 [DEBUG] launcher(57): running /x" -> "launcher: running"
QStringList logStepsSince(qint64 offset)
{
    QFile log(logPath());
    if (!log.open(QIODevice::ReadOnly) || !log.seek(offset))
        return {};
    static const QRegularExpression shape(QStringLiteral(R"(\] ([\w/-]+)\(\d+\): (.*)$)"));
    QStringList steps;
    for (const QString& line : QString::fromUtf8(log.readAll()).split('\n', Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch match = shape.match(line);
        if (match.hasMatch())
            steps << match.captured(1) + ": " + match.captured(2).section(" /", 0, 0);
    }
    return steps;
}

QProgressDialog* findDialog()
{
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* dialog = qobject_cast<QProgressDialog*>(widget))
            return dialog;
    return nullptr;
}

// Runs the event loop as main does; false if the launcher never quit it.
bool runEventLoop(TestLauncher* launcher)
{
    launcher->Run();
    launcher->Start();
    bool timed_out = false;
    QTimer guard;
    QObject::connect(&guard, &QTimer::timeout, [&timed_out] {
        timed_out = true;
        QCoreApplication::quit();
    });
    guard.start(10000);
    QApplication::exec();
    return !timed_out;
}

TEST(Launcher, LogsEachStepInOrderAndShowsTheDialogOnlyToUpgrade)
{
    const QStringList head = {"launcher: running", "fake: PreUpgrade", "fake: IsNeedUpgrade"};
    const QStringList tail = {"cloud-service: removing aged app folder", "fake: PostUpgrade", "launcher: done",
                              "fake: destroyed"};
    const struct {
        bool need_upgrade;
        int result;
        QStringList middle;
        const char* final_label;
    } cases[] = {
        {false, 0, {"launcher: no need to upgrade"}, "Drovia is initializing..."},
        {true, 0, {"fake: HandlePackageUpgrade"}, "Drovia is ready."},
        {true, -1, {"fake: HandlePackageUpgrade", "launcher: Failed to upgrade package"}, "Drovia is initializing..."},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.middle.join(", ").toStdString());
        const qint64 log_start = QFile(logPath()).size();
        Worker* worker = new TestWorker(c.need_upgrade, c.result);
        QSignalSpy show_requests(worker, SIGNAL(sigShowMsg()));
        auto* launcher = new TestLauncher(worker);
        ASSERT_TRUE(runEventLoop(launcher));
        QProgressDialog* dialog = findDialog();
        ASSERT_NE(dialog, nullptr);
        EXPECT_TRUE(dialog->isHidden());
        EXPECT_EQ(dialog->value(), 100);
        EXPECT_EQ(dialog->labelText(), c.final_label);
        EXPECT_EQ(show_requests.count(), c.need_upgrade ? 1 : 0);
        delete launcher;
        EXPECT_EQ(logStepsSince(log_start), head + c.middle + tail);
    }
}

TEST(Launcher, ShowsReportsAsTruncatedPercentages)
{
    TestLauncher launcher(new TestWorker(false, 0));
    QProgressDialog* dialog = findDialog();
    ASSERT_NE(dialog, nullptr);
    const int reports[][3] = {{3, 1, 33}, {3, 2, 66}, {7, 7, 100}, {0, 0, 100}};
    for (const auto& r : reports) {
        QMetaObject::invokeMethod(&launcher, "UpdateProgress", Q_ARG(int, r[0]), Q_ARG(int, r[1]));
        EXPECT_EQ(dialog->value(), r[2]) << r[1] << "/" << r[0];
    }
    // The relay that the extractor reports through reaches the same slots.
    Notify_Adapter::GetInstance()->UpdateProgress(4, 1);
    EXPECT_EQ(dialog->value(), 25);
    Notify_Adapter::GetInstance()->UpdateDialogText("unpacking");
    EXPECT_EQ(dialog->labelText(), "unpacking");
}

// Closing the dialog ends the event loop (it was the last window) while the
// upgrade still runs. Deleting the launcher must wait for the upgrade and the
// launch to finish, and destroy the service only after that.
TEST(Launcher, ClosingTheDialogMidUpgradeLetsTheWorkFinish)
{
    upgrade_may_finish = false;
    Worker* worker = new TestWorker(true, 0);
    auto* launcher = new TestLauncher(worker);
    const qint64 log_start = QFile(logPath()).size();
    // Queued after the launcher's own handler, which shows the dialog.
    QObject::connect(worker, &Worker::sigShowMsg, launcher, [] { findDialog()->close(); }, Qt::QueuedConnection);
    EXPECT_TRUE(runEventLoop(launcher));

    std::thread releaser([] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        upgrade_may_finish = true;
    });
    delete launcher;
    releaser.join();
    EXPECT_EQ(logStepsSince(log_start).filter(QRegularExpression("^fake: ")),
              QStringList({"fake: PreUpgrade", "fake: IsNeedUpgrade", "fake: HandlePackageUpgrade",
                           "fake: PostUpgrade", "fake: destroyed"}));
}

}  // namespace
