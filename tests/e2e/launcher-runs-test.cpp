// Whole runs of the launcher: installing, finding nothing to do, waiting for
// another launcher, rolling back on a full disk, logging without a log
// folder; and the client the launcher starts shares nothing with it.
#include <sys/mount.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include "files.h"
#include "install-layout.h"
#include "sandbox.h"

namespace {

using LauncherRuns = LauncherSandbox;

// An empty file of the single-instance lock's name, which a killed launcher
// left in the lock's own folder, stops nothing.
TEST_F(LauncherRuns, FreshInstallThenNothingToDoWhileTheClientRuns)
{
    Ship(5);
    ASSERT_TRUE(WriteBytes(UserPath("app/left-over"), "aged"));
    ASSERT_TRUE(WriteBytes(UserPath(QString(layout::kRuntimeFolder) + "/" + InstanceLockName(getuid())), ""));
    int inherited[2];  // left open across exec, as a shell leaves "launcher | cat" its pipe
    ASSERT_EQ(pipe(inherited), 0);

    const LauncherRun first = RunLauncher();
    EXPECT_EQ(first.exit_code, 0) << first.err.toStdString();
    EXPECT_EQ(first.out, "lib path = 'Drovia.app/Contents/Frameworks/plugins'\n");
    EXPECT_EQ(InstalledBuild(), "5");
    EXPECT_FALSE(QFileInfo::exists(UserPath("app")));
    EXPECT_TRUE(Leftovers().isEmpty());
    EXPECT_EQ(StartedBuilds(), QStringList{"5"});
    // Its pid file written, the client holds only /dev/null: "launcher | cat" ends with the launcher.
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFileInfo::exists(UserPath(layout::kPidFile)); }));
    const QString descriptors = "/proc/" + StartLines().join('\n').section(' ', -1) + "/fd/";
    QStringList held;
    for (const QString& fd :
         QDir(descriptors).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot))
        held << fd + " " + QFile::symLinkTarget(descriptors + fd);
    EXPECT_EQ(held.join(", ").toStdString(), "0 /dev/null, 1 /dev/null, 2 /dev/null");
    const QStringList first_log = LogMessages();
    EXPECT_EQ(first_log.last(), "launcher: done");

    EXPECT_EQ(RunLauncher().exit_code, 0);
    const QStringList second_log = LogMessages().mid(first_log.size());
    EXPECT_EQ(second_log.filter("already runs as process").size(), 1) << second_log.join('\n').toStdString();
    EXPECT_EQ(StartedBuilds(), QStringList{"5"}) << "a second client started";
    EXPECT_EQ(RunningBuilds(), QStringList{"5"});
    for (int fd : inherited)
        close(fd);
}

// Another launcher of the user's, from another copy of the bundle, is upgrading: this one
// waits, leaving the installation and the other's unpack alone, then finds nothing to do.
TEST_F(LauncherRuns, WaitsWhileAnotherLauncherHoldsTheInstallation)
{
    InstallForUser(ClientBundle(4));
    Ship(5);
    const int other_launcher = HoldLock(UserPath(layout::kLockFile));
    ASSERT_TRUE(other_launcher >= 0 && WriteBytes(UserPath("Drovia.app_new/unpacking"), ""));
    QProcess launcher;
    StartLauncher(launcher, Environment());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !LogMessages().filter("waiting for it").isEmpty(); }, 10000));
    EXPECT_FALSE(launcher.waitForFinished(300)) << "did not wait for the other launcher";
    EXPECT_EQ(InstalledBuild(), "4");
    EXPECT_TRUE(QFileInfo::exists(UserPath("Drovia.app_new/unpacking")));
    close(other_launcher);
    ASSERT_TRUE(launcher.waitForFinished());
    EXPECT_EQ(InstalledBuild(), "5");
    EXPECT_EQ(RunningBuilds(), QStringList{"5"});
}

// A 1 MiB file system of 32 files holds the old installation but neither the new package's
// bytes nor its entries, and a file stands where the log folder belongs; one of 8 MiB and
// 12 files refuses it before writing anything; one that counts no files takes one that fits.
TEST_F(LauncherRuns, FullDiskKeepsTheOldInstallationAndLogsToStandardError)
{
    std::mt19937 random(7);
    ASSERT_EQ(mount("drovia-full", home.toUtf8().constData(), "tmpfs", 0, "size=1m,nr_inodes=32"), 0);
    InstallForUser(ClientBundle(4));
    const TreeSnapshot old_installation = SnapshotOfFolder(UserPath("Drovia.app"));
    ASSERT_TRUE(WriteBytes(UserPath("log"), "a file where the log folder belongs"));
    ASSERT_TRUE(WriteBytes(UserPath("app/left-over"), "aged"));
    std::vector<PackageEntry> files = {{"Contents/Resources/big", RandomBytes(random, 4 << 20)}};
    files.resize(40, {"Contents/Resources/small", "x"});
    Ship(5, MakeArchive(ClientBundle(5, files)));

    const LauncherRun run = RunLauncher();
    EXPECT_EQ(run.exit_code, 0);
    EXPECT_EQ(SnapshotOfFolder(UserPath("Drovia.app")), old_installation);
    EXPECT_TRUE(Leftovers().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(UserPath("app")));
    EXPECT_EQ(StartedBuilds(), QStringList{"4"});
    const QStringList messages = MessagesIn(run.err);
    const QRegularExpression missing(
        "^extractor: not enough space .*: (\\d+ bytes|room for \\d+ more files) missing$");
    EXPECT_EQ(messages.filter(missing).size(), 2) << run.err.toStdString();
    EXPECT_TRUE(messages.contains("cloud-service: Failed to extract package, rollback to old installation"));
    EXPECT_TRUE(messages.contains("launcher: Failed to upgrade package")) << run.err.toStdString();
    EXPECT_FALSE(messages.contains("launcher: running")) << "the level file is read only with a log file";

    ASSERT_EQ(mount("drovia-few-files", UserPath("").toUtf8(), "tmpfs", 0, "size=8m,nr_inodes=12"), 0);
    EXPECT_EQ(RunLauncher().exit_code, 0);
    EXPECT_EQ(LogMessages().filter("extractor:").size(), 1) << LogMessages().join('\n').toStdString();
    Ship(5);
    ASSERT_EQ(mount("drovia-uncounted", UserPath("").toUtf8(), "tmpfs", 0, "size=1m,nr_inodes=0"), 0);
    EXPECT_EQ(RunLauncher().exit_code, 0);
    EXPECT_EQ(InstalledBuild(), "5");
    EXPECT_EQ(umount2(home.toUtf8().constData(), MNT_DETACH), 0);
}

}  // namespace
