#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <mutex>
#include <ostream>
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

// "Nov 16 20:31:15 [DEBUG] launcher(57): running" -> "launcher: running",
// without any path at the end of the message.
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
            steps << match.captured(1) + ": " + match.captured(2).section(" /", 0, 0);
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

struct RunCase {
    const char* name;
    bool need_upgrade;
    int upgrade_result;
    QStringList steps;
    int show_requests;
    const char* final_label;
};

void PrintTo(const RunCase& run_case, std::ostream* out)
{
    *out << run_case.name;
}

class LauncherRun : public ::testing::TestWithParam<RunCase> {};

TEST_P(LauncherRun, LogsEachStepInOrderAndEndsWithTheDialogHidden)
{
    const RunCase& expected = GetParam();
    auto* service = new FakeService;
    service->need_upgrade = expected.need_upgrade;
    service->upgrade_result = expected.upgrade_result;
    auto* worker = new TestWorker(service);
    QSignalSpy show_requests(worker, SIGNAL(sigShowMsg()));
    auto* launcher = new TestLauncher(worker);
    const qint64 log_start = logSize();

    launcher->Run();
    launcher->Start();
    ASSERT_TRUE(runEventLoop());

    QProgressDialog* dialog = findDialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->isHidden());
    EXPECT_EQ(dialog->value(), 100);
    EXPECT_EQ(dialog->labelText(), expected.final_label);
    EXPECT_EQ(show_requests.count(), expected.show_requests);
    delete launcher;
    EXPECT_EQ(logStepsSince(log_start), expected.steps);
}

const QStringList kHead = {"launcher: running", "fake: PreUpgrade", "fake: IsNeedUpgrade"};
const QStringList kTail = {"cloud-service: removing aged app folder", "fake: PostUpgrade", "launcher: done"};

INSTANTIATE_TEST_SUITE_P(
    Outcomes, LauncherRun,
    ::testing::Values(
        RunCase{"NoUpgrade", false, 0, kHead + QStringList{"launcher: no need to upgrade"} + kTail, 0,
                kPreparingText},
        RunCase{"Upgraded", true, 0, kHead + QStringList{"fake: HandlePackageUpgrade"} + kTail, 1, kReadyText},
        RunCase{"UpgradeFailed", true, -1,
                kHead + QStringList{"fake: HandlePackageUpgrade", "launcher: Failed to upgrade package"} + kTail, 1,
                kPreparingText}),
    [](const ::testing::TestParamInfo<RunCase>& info) { return std::string(info.param.name); });

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
    report(0, 0);
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
