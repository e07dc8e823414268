#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "cloud-service.h"
#include "launcher.h"
#include "log.h"
#include "notify-adapter.h"
#include "strtable.h"
#include "worker.h"

namespace {

const int kRunTimeoutMs = 10000;
const char kPreparingText[] = "Drovia is initializing...";
const char kReadyText[] = "Drovia is ready.";

// Calls are written to the shared log, so that one file shows the worker's
// lines and the service's steps in the order they happened.
class FakeService : public Service {
public:
    bool need_upgrade = false;
    int upgrade_result = 0;
    // Set to hold HandlePackageUpgrade until the test lets it go.
    std::timed_mutex* upgrade_gate = nullptr;
    std::vector<std::string>* destroyed_after = nullptr;

    ~FakeService() override
    {
        if (destroyed_after)
            destroyed_after->push_back(last_step);
    }

    void StopService() override { step("StopService"); }
    void PreUpgrade() override { step("PreUpgrade"); }
    bool IsNeedUpgrade() override
    {
        step("IsNeedUpgrade");
        return need_upgrade;
    }
    int HandlePackageUpgrade() override
    {
        step("HandlePackageUpgrade");
        if (upgrade_gate) {
            upgrade_gate->lock();
            upgrade_gate->unlock();
        }
        return upgrade_result;
    }
    void PostUpgrade() override { step("PostUpgrade"); }

private:
    void step(const char* name)
    {
        last_step = name;
        Logger::LogMsg(Logger::LEVEL_DEBUG, "service_debug", "[DEBUG] fake(%d): %s\n", __LINE__, name);
    }

    std::string last_step;
};

class TestWorker : public Worker {
public:
    explicit TestWorker(Service* service) : Worker(service) {}
};

class TestLauncher : public Launcher {
public:
    explicit TestLauncher(Worker* worker) : Launcher(worker) {}
};

// One application, one temporary home and one log for the whole binary: the
// toolkit and the logger are process-wide.
class LauncherEnvironment : public ::testing::Environment {
public:
    void SetUp() override
    {
        ASSERT_TRUE(home.isValid());
        qputenv("HOME", home.path().toUtf8());
        QFile level_file(home.filePath("launcher.debug"));
        ASSERT_TRUE(level_file.open(QIODevice::WriteOnly));
        level_file.write("launcher_debug=7\nservice_debug=7\n");
        level_file.close();
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, logPath().toUtf8().constData(),
                                     level_file.fileName().toUtf8().constData(), 50),
                  0);
        app = new QApplication(argc, argv);
        StrTable::InitStrTable();
    }

    void TearDown() override
    {
        delete app;
        app = nullptr;
        Logger::Destroy();
    }

    static QString logPath() { return home.filePath("launcher.log"); }

    static QTemporaryDir home;

private:
    int argc = 1;
    char app_name[16] = "launcher_test";
    char* argv[2] = {app_name, nullptr};
    QApplication* app = nullptr;
};

QTemporaryDir LauncherEnvironment::home;
::testing::Environment* const environment = ::testing::AddGlobalTestEnvironment(new LauncherEnvironment);

// "Nov 16 20:31:15 [DEBUG] launcher(57): running" -> "launcher: running"
QStringList logStepsSince(qint64 offset)
{
    QFile log(LauncherEnvironment::logPath());
    if (!log.open(QIODevice::ReadOnly) || !log.seek(offset))
        return {};
    const QRegularExpression line_shape(QStringLiteral(R"(\] ([\w/-]+)\(\d+\): (.*)$)"));
    QStringList steps;
    for (const QString& line : QString::fromUtf8(log.readAll()).split('\n', Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch match = line_shape.match(line);
        if (match.hasMatch())
            steps << match.captured(1) + ": " + match.captured(2);
    }
    return steps;
}

qint64 logSize()
{
    return QFile(LauncherEnvironment::logPath()).size();
}

QProgressDialog* findDialog()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<QProgressDialog*>(widget))
            return dialog;
    }
    return nullptr;
}

// Runs the event loop as main does; false if the launcher never quit it.
bool runEventLoop()
{
    bool timed_out = false;
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, [&timed_out] {
        timed_out = true;
        QCoreApplication::quit();
    });
    guard.start(kRunTimeoutMs);
    QApplication::exec();
    return !timed_out;
}

struct RunResult {
    QStringList steps;
    int show_requests = 0;
    bool dialog_hidden = false;
    int dialog_value = -1;
    QString dialog_label;
};

RunResult runLauncher(FakeService* service)
{
    RunResult result;
    const qint64 log_start = logSize();
    auto* worker = new TestWorker(service);
    QSignalSpy show_requests(worker, SIGNAL(sigShowMsg()));
    auto* launcher = new TestLauncher(worker);
    launcher->Run();
    launcher->Start();
    EXPECT_TRUE(runEventLoop());

    QProgressDialog* dialog = findDialog();
    EXPECT_NE(dialog, nullptr);
    if (dialog) {
        result.dialog_hidden = dialog->isHidden();
        result.dialog_value = dialog->value();
        result.dialog_label = dialog->labelText();
    }
    result.show_requests = show_requests.count();
    delete launcher;
    result.steps = logStepsSince(log_start);
    return result;
}

TEST(LauncherRun, NoUpgradeStartsTheClientWithoutShowingTheDialog)
{
    auto* service = new FakeService;
    const RunResult run = runLauncher(service);

    EXPECT_EQ(run.steps, QStringList({"launcher: running", "fake: PreUpgrade", "fake: IsNeedUpgrade",
                                      "launcher: no need to upgrade",
                                      "cloud-service: removing aged app folder " + LauncherEnvironment::home.path() +
                                          "/.Drovia/app",
                                      "fake: PostUpgrade", "launcher: done"}));
    EXPECT_EQ(run.show_requests, 0);
    EXPECT_TRUE(run.dialog_hidden);
    EXPECT_EQ(run.dialog_label, kPreparingText);
}

TEST(LauncherRun, SuccessfulUpgradeEndsAtReadyAndHidesTheDialog)
{
    auto* service = new FakeService;
    service->need_upgrade = true;
    const RunResult run = runLauncher(service);

    const QStringList expected_head = {"launcher: running", "fake: PreUpgrade", "fake: IsNeedUpgrade",
                                       "fake: HandlePackageUpgrade"};
    EXPECT_EQ(run.steps.mid(0, 4), expected_head);
    EXPECT_TRUE(run.steps.at(4).startsWith("cloud-service: removing aged app folder"));
    EXPECT_EQ(run.steps.mid(5), QStringList({"fake: PostUpgrade", "launcher: done"}));
    EXPECT_EQ(run.show_requests, 1);
    EXPECT_TRUE(run.dialog_hidden);
    EXPECT_EQ(run.dialog_value, 100);
    EXPECT_EQ(run.dialog_label, kReadyText);
}

TEST(LauncherRun, FailedUpgradeIsLoggedAndStillStartsTheClient)
{
    auto* service = new FakeService;
    service->need_upgrade = true;
    service->upgrade_result = -1;
    const RunResult run = runLauncher(service);

    ASSERT_GE(run.steps.size(), 8);
    EXPECT_EQ(run.steps.mid(3, 2),
              QStringList({"fake: HandlePackageUpgrade", "launcher: Failed to upgrade package"}));
    EXPECT_EQ(run.steps.mid(6), QStringList({"fake: PostUpgrade", "launcher: done"}));
    EXPECT_EQ(run.show_requests, 1);
    EXPECT_TRUE(run.dialog_hidden);
    EXPECT_EQ(run.dialog_value, 100);
    EXPECT_EQ(run.dialog_label, kPreparingText);
}

TEST(LauncherProgress, ReportsBecomeTruncatedPercentages)
{
    TestLauncher launcher(new TestWorker(new FakeService));
    QProgressDialog* dialog = findDialog();
    ASSERT_NE(dialog, nullptr);

    const auto report = [&launcher](int total, int steps) {
        QMetaObject::invokeMethod(&launcher, "UpdateProgress", Q_ARG(int, total), Q_ARG(int, steps));
    };
    report(3, 1);
    EXPECT_EQ(dialog->value(), 33);
    report(3, 2);
    EXPECT_EQ(dialog->value(), 66);
    report(7, 7);
    EXPECT_EQ(dialog->value(), 100);

    // The relay reaches the same slots.
    Notify_Adapter::GetInstance()->UpdateProgress(4, 1);
    EXPECT_EQ(dialog->value(), 25);
    Notify_Adapter::GetInstance()->UpdateDialogText("unpacking");
    EXPECT_EQ(dialog->labelText(), "unpacking");
}

// Closing the dialog ends the event loop (it was the last window) while the
// upgrade still runs. Deleting the launcher must wait for the upgrade and the
// launch to finish, and destroy the service only after the thread ended.
TEST(LauncherShutdown, ClosingTheDialogMidUpgradeLetsTheWorkFinish)
{
    std::timed_mutex upgrade_gate;
    upgrade_gate.lock();
    std::vector<std::string> destroyed_after;
    auto* service = new FakeService;
    service->need_upgrade = true;
    service->upgrade_gate = &upgrade_gate;
    service->destroyed_after = &destroyed_after;

    auto* launcher = new TestLauncher(new TestWorker(service));
    launcher->Run();
    launcher->Start();
    QTimer close_when_shown;
    QObject::connect(&close_when_shown, &QTimer::timeout, [] {
        QProgressDialog* dialog = findDialog();
        if (dialog && dialog->isVisible())
            dialog->close();
    });
    close_when_shown.start(10);
    EXPECT_TRUE(runEventLoop());
    close_when_shown.stop();

    std::thread releaser([&upgrade_gate] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        upgrade_gate.unlock();
    });
    delete launcher;
    releaser.join();

    EXPECT_EQ(destroyed_after, std::vector<std::string>({"PostUpgrade"}));
}

}  // namespace
