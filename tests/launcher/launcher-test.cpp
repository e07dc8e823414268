// The Launcher and the Worker with a fake service: the steps in order in the
// log, the dialog shown only for an upgrade, and a clean end even when the
// user closes the dialog while the upgrade runs.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QProgressDialog>
#include <QThread>
#include <QTimer>

#include "cloud-service.h"
#include "files.h"
#include "launcher.h"
#include "log.h"
#include "notify-adapter.h"
#include "worker.h"

namespace {

// Steps go to the log the launcher writes, so that one file shows both sides in order.
void Step(const char* name)
{
    Logger::LogMsg(Logger::LEVEL_DEBUG, "service_debug", "[DEBUG] fake(1): %s\n", name);
}

struct Outcome {
    bool upgrade;
    int result;
    bool slow;  // the upgrade takes long enough for the user to close the dialog
};

class FakeService : public Service {
public:
    explicit FakeService(Outcome given) : outcome(given) { user_app_path = GetUserDroviaAppInstallPath(); }
    ~FakeService() override { Step("destroyed"); }
    void StopService() override {}
    bool IsNeedUpgrade() override { return outcome.upgrade; }
    void PreUpgrade() override { Step("Pre"); }
    void PostUpgrade() override { Step("Post"); }
    int HandlePackageUpgrade() override
    {
        QThread::msleep(outcome.slow ? 300 : 0);
        QDir().mkpath(QDir::homePath() + "/.Drovia/Drovia.app_new");  // the tree it replaced
        Step("Handle");
        return outcome.result;
    }

private:
    const Outcome outcome;
};

QProgressDialog* Dialog()
{
    return qobject_cast<QProgressDialog*>(QApplication::topLevelWidgets().value(0));
}

// Runs one launcher as main() does; its messages as "launcher: running|fake: Pre|...".
std::string RunLauncher(Outcome outcome)
{
    const LogCapture log;
    auto* worker = new Worker(new FakeService(outcome));
    auto* launcher = new Launcher(worker);
    int shown = 0;
    int labels = 0;
    // Queued behind the launcher's own slot, which shows the dialog.
    QObject::connect(
        worker, &Worker::sigShowMsg, launcher,
        [&] {
            ++shown;
            if (outcome.slow)
                Dialog()->close();
        },
        Qt::QueuedConnection);
    QObject::connect(worker, &Worker::sigSetLabelText, [&] { ++labels; });
    QTimer::singleShot(10000, [] { QCoreApplication::exit(1); });
    launcher->Run();
    launcher->Start();
    EXPECT_EQ(QApplication::exec(), 0) << "never quit";
    EXPECT_EQ(shown, outcome.upgrade ? 1 : 0);
    EXPECT_FALSE(Dialog()->isVisible());
    delete launcher;  // must wait for the work to end before destroying the service
    EXPECT_EQ(labels, outcome.upgrade && outcome.result == 0 ? 1 : 0) << "the ready text";

    return MessagesIn(QString::fromStdString(log.Text()).replace(QDir::homePath(), "~"))
        .join('|')
        .toStdString();
}

TEST(Launcher, LogsEachOutcomeInOrderShowingTheDialogOnlyToUpgrade)
{
    ASSERT_TRUE(QDir().mkpath(QDir::homePath() + "/.Drovia"));  // as main() leaves it, with the log
    const std::string head = "launcher: running|fake: Pre|";
    const std::string tail =
        "|cloud-service: removing aged app folder ~/.Drovia/app|fake: Post|launcher: done|";
    const std::string upgraded = tail + "cloud-service: removing '~/.Drovia/Drovia.app_new'|fake: destroyed";
    EXPECT_EQ(RunLauncher({false, 0, false}),
              head + "launcher: no need to upgrade" + tail + "fake: destroyed");
    EXPECT_EQ(RunLauncher({true, 0, false}), head + "fake: Handle" + upgraded);
    EXPECT_EQ(RunLauncher({true, -1, false}),
              head + "fake: Handle|launcher: Failed to upgrade package" + upgraded);
    // Closing the last window ends the event loop while the upgrade still runs.
    EXPECT_EQ(RunLauncher({true, 0, true}), head + "fake: Handle" + upgraded);
}

TEST(Launcher, ShowsTheEntriesUnpackedInWholePercents)
{
    Launcher launcher(new Worker(new FakeService({false, 0, false})));
    const int reports[][3] = {{3, 2, 66}, {7, 7, 100}, {0, 0, 100}};  // total, done, percent shown
    for (const auto& report : reports) {
        Notify_Adapter::GetInstance()->UpdateProgress(report[0], report[1]);
        EXPECT_EQ(Dialog()->value(), report[2]) << report[1] << " of " << report[0];
    }
}

}  // namespace
