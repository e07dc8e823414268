#include <gtest/gtest.h>
#include <QtWidgets>

#include "cloud-service.h"
#include "launcher.h"
#include "log.h"
#include "notify-adapter.h"
#include "strtable.h"
#include "worker.h"

static std::atomic<int> need_upgrade, upgrade_result, slow_upgrade;
static Worker* latest_worker;
static QTemporaryDir home;

// Steps go to the launcher's log, so that one file shows both sides in the order they happened.
static void step(const char* s) { Logger::LogMsg(Logger::LEVEL_DEBUG, "service_debug", "[DEBUG] fake(1): %s\n", s); }
struct FakeService : Service {
    ~FakeService() override { step("destroyed"); }
    void StopService() override {}
    bool IsNeedUpgrade() override { return need_upgrade; }
    void PreUpgrade() override { step("Pre"); }
    void PostUpgrade() override { step("Post"); }
    int HandlePackageUpgrade() override { QThread::msleep(slow_upgrade * 300); return step("Handle"), upgrade_result; }
};
struct TestWorker : Worker { TestWorker() : Worker(new FakeService) { latest_worker = this; } };
struct TestLauncher : Launcher { TestLauncher() : Launcher(new TestWorker) {} };
static QProgressDialog* dialog() { return qobject_cast<QProgressDialog*>(QApplication::topLevelWidgets().value(0)); }

// Runs one launcher as main does and returns its log lines as "launcher: running|fake: Pre|...".
static std::string run(bool upgrade, int result, bool close_when_shown = false)
{
    need_upgrade = upgrade, upgrade_result = result, slow_upgrade = close_when_shown;
    QFile log(home.filePath("launcher.log"));
    const qint64 start = log.size();  // the log is shared by all runs
    auto* launcher = new TestLauncher;
    int shown = 0;  // queued after the launcher's own handler, which shows the dialog
    QObject::connect(latest_worker, &Worker::sigShowMsg, launcher,
                     [&] { ++shown, close_when_shown && dialog()->close(); }, Qt::QueuedConnection);
    launcher->Run(), launcher->Start();
    QTimer::singleShot(10000, [] { ADD_FAILURE() << "never quit", QCoreApplication::quit(); });
    QApplication::exec();
    EXPECT_EQ(shown, upgrade ? 1 : 0);
    delete launcher;  // must wait for the work to end before destroying the service
    static const QRegularExpression shape(R"(^.*\] ([\w/-]+)\(\d+\): ([^/\n]*[^/\n ]).*$)",
                                          QRegularExpression::MultilineOption);
    QString steps = (log.open(QIODevice::ReadOnly), log.seek(start), QString::fromUtf8(log.readAll()));
    return steps.replace(shape, "\\1: \\2").split('\n', Qt::SkipEmptyParts).join('|').toStdString();
}

TEST(Launcher, LogsEachOutcomeInOrderShowsTheDialogOnlyToUpgradeAndTruncatesPercentages)
{
    const std::string head = "launcher: running|fake: Pre|";
    const std::string tail = "|cloud-service: removing aged app folder|fake: Post|launcher: done|fake: destroyed";
    EXPECT_EQ(run(false, 0), head + "launcher: no need to upgrade" + tail);
    EXPECT_EQ(run(true, 0), head + "fake: Handle" + tail);
    EXPECT_EQ(run(true, -1), head + "fake: Handle|launcher: Failed to upgrade package" + tail);
    // Closing the last window ends the event loop while the upgrade still runs.
    EXPECT_EQ(run(true, 0, true), head + "fake: Handle" + tail);

    TestLauncher launcher;
    for (const auto& [total, done, percent] : {std::tuple{3, 2, 66}, {7, 7, 100}, {0, 0, 100}})
        EXPECT_EQ((Notify_Adapter::GetInstance()->UpdateProgress(total, done), dialog()->value()), percent) << done;
}

int main(int argc, char** argv)
{
    if (::testing::InitGoogleTest(&argc, argv), ::testing::GTEST_FLAG(list_tests))  // no display, no leak checks
        return RUN_ALL_TESTS();
    qputenv("HOME", home.path().toUtf8());  // the toolkit's caches and settings
    QFile levels(home.filePath("launcher.debug"));  // debug lines from both sides
    (void)(levels.open(QIODevice::WriteOnly) && levels.write("launcher_debug=7\nservice_debug=7\n") && levels.flush());
    Logger::Initialize(Logger::TYPE_FILE, qPrintable(home.filePath("launcher.log")), qPrintable(levels.fileName()), 50);
    QApplication app(argc, argv);
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}
