// The user's installation under concurrent and interrupted runs: whatever
// happens, the next run leaves a complete installation, no backup and one
// client.
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>

#include <functional>

#include "files.h"
#include "install-layout.h"
#include "sandbox.h"

namespace {

// Many small files, so that unpacking a build or deleting one takes long
// enough for another run or a kill to land in the middle.
std::vector<PackageEntry> BulkFiles(const std::string& folder, int count, int size)
{
    std::mt19937 random(static_cast<unsigned>(count));
    std::vector<PackageEntry> files;
    for (int index = 0; index < count; ++index)
        files.push_back({folder + "/" + std::to_string(index), RandomBytes(random, size)});
    return files;
}

class Installation : public LauncherSandbox {
protected:
    void SetUp() override
    {
        LauncherSandbox::SetUp();
        if (IsSkipped())
            return;
        Ship(5, MakeArchive(package));
        unpacked = SnapshotOfEntries(package);
    }

    // In a new home: the clients of earlier homes may still run, but they are
    // not this home's.
    void InstallOldBuild(const std::string& home_name, int files)
    {
        MoveToNewHome(QString::fromStdString(home_name));
        InstallForUser(ClientBundle(4, BulkFiles("Contents/Resources/old", files, 64)));
    }

    void ExpectOneCompleteInstallation(const std::string& context)
    {
        EXPECT_EQ(SnapshotOfFolder(UserPath(layout::kBundleName)), unpacked) << context;
        EXPECT_TRUE(Backups().isEmpty()) << context;
        EXPECT_EQ(RunningBuilds(), QStringList{"5"}) << context;
    }

    const std::vector<PackageEntry> package = ClientBundle(5, BulkFiles("Contents/Resources/new", 300, 4096));
    TreeSnapshot unpacked;  // what the package gives
};

// One copy in a downloads folder, one installed: each has its own
// single-instance guard, and both share the user's installation.
TEST_F(Installation, TwoBundleCopiesTogetherEndWithOneInstallationAndOneClient)
{
    const QString downloads = "Downloads/Drovia.app";
    ASSERT_TRUE(QDir().mkpath(sandbox.filePath(downloads)));
    ASSERT_EQ(QProcess::execute("cp", {"-RT", bundle, sandbox.filePath(downloads)}), 0);
    for (int trial = 0; trial < Repetitions(4, 40); ++trial) {
        InstallOldBuild("trial " + std::to_string(trial), 100);
        QProcess installed;
        QProcess downloaded;
        StartLauncher(installed, Environment());
        QThread::msleep(static_cast<unsigned long>(trial * 37 % 120));
        StartLauncher(downloaded, Environment(), downloads);
        EXPECT_TRUE(installed.waitForFinished() && downloaded.waitForFinished());
        EXPECT_EQ(installed.exitCode() + downloaded.exitCode(), 0);
        EXPECT_TRUE(LogMessages().filter("already launched").isEmpty()) << "one copy kept the other out";
        ExpectOneCompleteInstallation("trial " + std::to_string(trial));
    }
}

TEST_F(Installation, EveryInterruptionConvergesOnTheNextRun)
{
    // Kills when the file system shows a stage, so that they land in each
    // whatever the load; the old client takes two seconds to stop where that
    // stage is aimed at.
    struct Moment {
        std::string stage;
        std::function<bool()> reached;
        const char* old_client = "";
    };
    const auto backup_made = [this] { return QFileInfo::exists(UserPath("Drovia.app_tmp")); };
    const auto new_build_in = [this] { return InstalledBuild() == "5"; };
    std::vector<Moment> moments = {
        {"stopping the old client", [this] { return !LogMessages().filter("local appdata exist").isEmpty(); },
         "slow-exit"},
        {"backup made", backup_made},
        {"unpacking",
         [this] { return QFileInfo::exists(UserPath("Drovia.app/Contents/Resources/new/150")); }},
        {"cleaning up", [&] { return new_build_in() && backup_made(); }},
        {"starting the client", [&] { return new_build_in() && !backup_made(); }},
    };
    // And at random moments of an uninterrupted run. The old installation is
    // big enough that deleting its backup takes a while.
    const int old_files = 1500;
    InstallOldBuild("uninterrupted", old_files);
    const qint64 run_length = RunLauncher().milliseconds;
    QElapsedTimer since_start;
    std::mt19937 random(20261123);
    for (int kill = 0; kill < Repetitions(3, 200); ++kill) {
        const qint64 delay = random() % (run_length + 1);
        const std::string stage = "kill " + std::to_string(kill) + " after " + std::to_string(delay) + " ms";
        moments.push_back({stage, [&, delay] { return since_start.elapsed() >= delay; }});
    }

    for (const Moment& moment : moments) {
        InstallOldBuild(moment.stage, old_files);
        StartClient(moment.old_client);
        QProcess launcher;
        StartLauncher(launcher, Environment());
        since_start.start();
        while (!moment.reached() && !launcher.waitForFinished(1)) {
        }
        launcher.kill();
        launcher.waitForFinished();
        EXPECT_EQ(RunLauncher().exit_code, 0) << moment.stage;
        ExpectOneCompleteInstallation(moment.stage);
    }
}

}  // namespace
