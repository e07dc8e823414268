// The user's installation under concurrent and interrupted runs: whatever
// happens, the next run leaves the complete old or new installation, nothing
// beside it and one client.
#include <unistd.h>

#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QThread>

#include <algorithm>
#include <map>
#include <utility>

#include "files.h"
#include "install-layout.h"
#include "sandbox.h"

namespace {

// The calls by which a run changes the file system, or stops the old client.
const char kChangingCalls[] =
    "mkdir,mkdirat,unlink,unlinkat,rmdir,rename,renameat,renameat2,symlink,symlinkat,"
    "link,linkat,fchmod,fchmodat,utimensat,pwrite64,ftruncate,fsync,fdatasync,syncfs,kill";

std::vector<PackageEntry> Files(const std::string& folder, int count)
{
    std::vector<PackageEntry> files;
    for (int index = 0; index < count; ++index)
        files.push_back({folder + "/" + std::to_string(index), std::string(100 * index, 'x')});
    return files;
}

// A call by its name and its number among its thread's calls of that name (strace's count).
using Call = std::pair<QString, int>;

class Installation : public LauncherSandbox {
protected:
    // In a new home, with its client running; earlier homes' clients may still run.
    void InstallOldBuild(const QString& home_name)
    {
        MoveToNewHome(home_name);
        InstallForUser(old_build);
        StartClient();
    }

    std::vector<Call> RecordCalls(const QStringList& strace_options)
    {
        const QString trace = sandbox.filePath("calls");
        RunUnderStrace(strace_options + QStringList{"-o", trace, "-e", kChangingCalls});
        std::vector<Call> calls;
        std::map<std::pair<QString, QString>, int> made;  // by thread and name
        const QRegularExpression call("^(\\d+) +(\\w+)\\(", QRegularExpression::MultilineOption);
        for (auto match = call.globalMatch(QString::fromStdString(ReadBytes(trace))); match.hasNext();) {
            const auto found = match.next();
            calls.push_back({found.captured(2), ++made[{found.captured(1), found.captured(2)}]});
        }
        return calls;
    }

    // The client the launcher starts runs on untraced.
    void RunUnderStrace(const QStringList& options)
    {
        wrapper =
            QStringList{QStandardPaths::findExecutable("strace"), "-f", "-qq", "-b", "execve"} + options;
        RunLauncher();
        wrapper.clear();
    }

    void RunStoppedAt(const Call& call, const QStringList& strace_options, const char* signal = "KILL")
    {
        const QString inject = QString("%1:signal=%2:when=%3").arg(call.first, signal).arg(call.second);
        RunUnderStrace(strace_options + QStringList{"-o", "/dev/null", "-e", "inject=" + inject});
    }

    void ExpectInstalled(const std::vector<PackageEntry>& entries, const char* build, const QString& context)
    {
        EXPECT_EQ(SnapshotOfFolder(UserPath(layout::kBundleName)), SnapshotOfEntries(entries))
            << context.toStdString();
        EXPECT_EQ(Leftovers(), QStringList()) << context.toStdString();
        EXPECT_EQ(RunningBuilds(), QStringList{build}) << context.toStdString();
    }

    const std::vector<PackageEntry> old_build = ClientBundle(4, Files("Contents/Resources/old", 8));
    const std::vector<PackageEntry> new_build = ClientBundle(5, Files("Contents/Resources/new", 8));
};

// The first and the last call of each name, in the order made; every call
// in the soak run.
std::vector<Call> Spread(const std::vector<Call>& calls)
{
    std::map<QString, int> last;
    for (const Call& call : calls)
        last[call.first] = call.second;
    std::vector<Call> points;
    for (const Call& call : calls) {
        if (call.second == 1 || call.second == last[call.first] || Repetitions(0, 1))
            points.push_back(call);
    }
    return points;
}

struct Upgrade {
    const char* name;
    int version_file_at;  // in the package: 0 first, -1 last
    bool fails;           // an entry half-way is refused
    bool can_exchange;    // whether the file system can exchange two folders
};

void PrintTo(const Upgrade& upgrade, std::ostream* out)
{
    *out << upgrade.name;
}

class StoppedUpgrade : public Installation, public ::testing::WithParamInterface<Upgrade> {};

// Stopped mostly by SIGKILL, at some points by a session's end signals. After each stop the next
// run (for a failing package, then a good one) leaves the old or the new installation and its client.
TEST_P(StoppedUpgrade, EndsWithTheOldOrTheNewInstallationOnTheNextRun)
{
    const Upgrade upgrade = GetParam();
    std::vector<PackageEntry> package = new_build;
    if (upgrade.version_file_at >= 0)
        std::rotate(package.begin() + upgrade.version_file_at, package.end() - 1, package.end());
    if (upgrade.fails)
        package.insert(package.begin() + 5, {"../refused", "out"});
    const QStringList strace_options =
        upgrade.can_exchange ? QStringList() : QStringList{"-e", "inject=renameat2:error=EINVAL"};
    Ship(5, MakeArchive(package));
    InstallOldBuild("recorded");
    const std::vector<Call> calls = Spread(RecordCalls(strace_options));
    ExpectInstalled(upgrade.fails ? old_build : package, upgrade.fails ? "4" : "5", "unstopped");
    const char* stop_signals[] = {"KILL", "TERM", "KILL", "HUP"};
    int point = 0;
    for (const Call& call : calls) {
        const char* stop_signal = stop_signals[point++ % 4];
        const QString context = QString("SIG%1 at %2 #%3").arg(stop_signal, call.first).arg(call.second);
        InstallOldBuild(context);
        RunStoppedAt(call, strace_options, stop_signal);
        EXPECT_EQ(RunLauncher().exit_code, 0) << context.toStdString();
        ExpectInstalled(upgrade.fails ? old_build : package, upgrade.fails ? "4" : "5", context);
        if (!upgrade.fails)
            continue;
        Ship(5, MakeArchive(new_build));
        EXPECT_EQ(RunLauncher().exit_code, 0) << context.toStdString();
        ExpectInstalled(new_build, "5", context + ", then a good package");
        Ship(5, MakeArchive(package));
    }
}

const Upgrade kUpgrades[] = {
    {"VersionFileLast", -1, false, true},   {"VersionFileFirst", 0, false, true},
    {"VersionFileBetween", 4, false, true}, {"Failing", -1, true, true},
    {"NoExchange", -1, false, false},
};
INSTANTIATE_TEST_SUITE_P(Packages, StoppedUpgrade, ::testing::ValuesIn(kUpgrades),
                         [](const auto& info) { return std::string(info.param.name); });

// Ten interrupted upgrades in a row use up nothing that the eleventh needs.
TEST_F(Installation, TenStoppedUpgradesInARowThenOneThatCompletes)
{
    Ship(5, MakeArchive(new_build));
    InstallOldBuild("recorded");
    const std::vector<Call> calls = RecordCalls({});
    ASSERT_GT(calls.size(), 20u);
    InstallOldBuild("stopped ten times");
    for (size_t at = 1; at <= 10; ++at)
        RunStoppedAt(calls[at * calls.size() / 11], {});
    EXPECT_EQ(RunLauncher().exit_code, 0);
    ExpectInstalled(new_build, "5", "after ten stops");
}

// A power cut right after the run, or after the journal's commit: ~/.Drovia on an
// ext4 image whose file is copied at those moments, each copy mounted as after a restart.
TEST_F(Installation, PowerCutAfterTheRunLeavesTheOldOrTheNewInstallation)
{
    const QString image = sandbox.filePath("drovia.img");
    const QString mounted = sandbox.filePath("mounted");
    MoveToNewHome("power cut");
    ASSERT_TRUE(QDir().mkpath(UserPath("")) && QDir().mkpath(mounted));
    ASSERT_EQ(QProcess::execute("truncate", {"-s", "32M", image}), 0);
    ASSERT_EQ(QProcess::execute("mkfs.ext4", {"-q", image}), 0);
    ASSERT_EQ(QProcess::execute("mount", {"-o", "loop,commit=1", image, UserPath("")}), 0);
    InstallForUser(old_build);
    sync();
    Ship(5, MakeArchive(new_build));
    RunUnderStrace({"-e", "inject=syncfs:error=EIO"});  // a disk that cannot write back: nothing replaced
    EXPECT_EQ(InstalledBuild(), "4");
    EXPECT_EQ(RunLauncher().exit_code, 0);
    ASSERT_TRUE(QFile::copy(image, sandbox.filePath("right after")));
    QThread::msleep(2000);
    ASSERT_TRUE(QFile::copy(image, sandbox.filePath("after the commit")));
    EXPECT_EQ(QProcess::execute("umount", {"--lazy", UserPath("")}), 0);  // the client runs from there
    for (const char* copy : {"right after", "after the commit"}) {
        ASSERT_EQ(QProcess::execute("mount", {"-o", "loop", sandbox.filePath(copy), mounted}), 0);
        const TreeSnapshot bundle_left = SnapshotOfFolder(mounted + "/" + layout::kBundleName);
        EXPECT_TRUE(bundle_left == SnapshotOfEntries(new_build) ||
                    bundle_left == SnapshotOfEntries(old_build))
            << copy << ": " << ::testing::PrintToString(bundle_left);
        EXPECT_EQ(QProcess::execute("umount", {mounted}), 0);
    }
}

// One copy in a downloads folder, one installed: each has its own
// single-instance guard, and both share the user's installation.
TEST_F(Installation, TwoBundleCopiesTogetherEndWithOneInstallationAndOneClient)
{
    Ship(5, MakeArchive(new_build));
    const QString downloads = "Downloads/Drovia.app";
    ASSERT_TRUE(QDir().mkpath(sandbox.filePath(downloads)));
    ASSERT_EQ(QProcess::execute("cp", {"-RT", bundle, sandbox.filePath(downloads)}), 0);
    for (int trial = 0; trial < Repetitions(4, 40); ++trial) {
        InstallOldBuild(QString("trial %1").arg(trial));
        QProcess installed;
        QProcess downloaded;
        StartLauncher(installed, Environment());
        QThread::msleep(static_cast<unsigned long>(trial * 37 % 120));
        StartLauncher(downloaded, Environment(), downloads);
        EXPECT_TRUE(installed.waitForFinished() && downloaded.waitForFinished());
        EXPECT_EQ(installed.exitCode() + downloaded.exitCode(), 0);
        EXPECT_TRUE(LogMessages().filter("already launched").isEmpty()) << "one copy kept the other out";
        ExpectInstalled(new_build, "5", QString("trial %1").arg(trial));
    }
}

}  // namespace
