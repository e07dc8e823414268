// How the launcher stops and starts the client: only the per-user client is
// ever signalled, and the client it starts shares nothing with it.
#include <QDir>
#include <QFile>
#include <QProcess>

#include "files.h"
#include "install-layout.h"
#include "sandbox.h"

namespace {

using ClientLife = LauncherSandbox;

// A stale pid file whose number now names, say, the user's editor.
TEST_F(ClientLife, PidFileOfAnotherProgramLeavesItAloneAndTheUpgradeGoesOn)
{
    InstallForUser(ClientBundle(4));
    Ship(5);
    QProcess editor;
    editor.start("sleep", {"30"});
    ASSERT_TRUE(editor.waitForStarted());
    ASSERT_TRUE(WriteBytes(UserPath(layout::kPidFile), "pid=" + std::to_string(editor.processId()) + "\n"));

    const LauncherRun run = RunLauncher();

    EXPECT_EQ(run.exit_code, 0);
    EXPECT_LT(run.milliseconds, 4000) << "waited for a process that is not the client";
    EXPECT_EQ(editor.state(), QProcess::Running);
    EXPECT_EQ(InstalledBuild(), "5");
    EXPECT_EQ(StartedBuilds(), QStringList{"5"});
    EXPECT_FALSE(LogMessages().filter("not the Drovia client").isEmpty());
    editor.kill();
    editor.waitForFinished();
}

// A crash can leave zero bytes behind the pid; the line still ends there. The
// client's own executable has been replaced meanwhile, as an interrupted
// upgrade may leave it: it is the client all the same.
TEST_F(ClientLife, ZeroPaddedPidFileStillStopsTheClientFirst)
{
    InstallForUser(ClientBundle(4));
    Ship(5);
    StartClient();
    const QString executable = UserPath("Drovia.app/Contents/MacOS/cloud-ui");
    ASSERT_TRUE(QFile::copy(executable, executable + ".new"));
    ASSERT_EQ(rename(qPrintable(executable + ".new"), qPrintable(executable)), 0);
    QFile pid_file(UserPath(layout::kPidFile));
    ASSERT_TRUE(pid_file.open(QIODevice::Append) && pid_file.write(QByteArray(64, '\0')) == 64);
    pid_file.close();

    const LauncherRun run = RunLauncher();

    EXPECT_EQ(run.exit_code, 0);
    EXPECT_LT(run.milliseconds, 4000) << "the client had to be killed";
    EXPECT_EQ(InstalledBuild(), "5");
    EXPECT_EQ(RunningBuilds(), QStringList{"5"}) << "the old client runs on";
}

// "launcher | cat" must end when the launcher does, though the client runs on.
TEST_F(ClientLife, LauncherOutputEndsWithTheLauncherWhileTheClientRuns)
{
    Ship(5);
    QProcess pipeline;
    pipeline.setProcessEnvironment(Environment());
    pipeline.start("sh", {"-c", "\"$LAUNCHER\" 2>&1 | cat"});
    ASSERT_TRUE(pipeline.waitForFinished(10000)) << "the client holds the launcher's output";
    EXPECT_TRUE(pipeline.readAll().contains("lib path"));
    ASSERT_EQ(RunningBuilds(), QStringList{"5"});

    const QString descriptors = "/proc/" + QString::number(LastStartedPid()) + "/fd/";
    for (const QString& fd :
         QDir(descriptors).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
        const QString target = QFile::symLinkTarget(descriptors + fd);
        EXPECT_FALSE(target.endsWith("launcher.log") || target.endsWith(layout::kLockFile))
            << target.toStdString();
        if (fd.toInt() <= 2) {
            EXPECT_EQ(target, "/dev/null") << "descriptor " << fd.toStdString();
        }
    }
}

}  // namespace
