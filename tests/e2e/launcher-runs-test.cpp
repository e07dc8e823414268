#include <gtest/gtest.h>

#include <QFileInfo>
#include <QList>
#include <QPair>

#include "launcher-sandbox.h"

namespace {

using LauncherRuns = LauncherSandbox;

TEST_F(LauncherRuns, FreshInstallThenNothingToUpgrade)
{
    shipInBundle(5, "new");
    ASSERT_TRUE(writeFile(userPath("app/left-over"), "aged"));

    const LauncherRun first = runLauncher();
    EXPECT_EQ(first.exit_code, 0) << first.err.toStdString();
    EXPECT_EQ(first.out, "lib path = 'Drovia.app/Contents/Frameworks/plugins'\n");
    EXPECT_EQ(installedBuild(), "5");
    EXPECT_TRUE(QFileInfo(userPath("Drovia.app/Contents/MacOS/cloud-ui")).isExecutable());
    EXPECT_FALSE(QFileInfo::exists(userPath("app")));
    EXPECT_TRUE(backupFolders().isEmpty());
    EXPECT_EQ(startedClients(1), QStringList({"new"}));
    const QStringList first_log = logMessages();
    EXPECT_EQ(first_log.first(), "launcher: running");
    EXPECT_EQ(first_log.last(), "launcher: done");
    EXPECT_FALSE(first_log.contains("launcher: no need to upgrade"));

    const LauncherRun second = runLauncher();
    EXPECT_EQ(second.exit_code, 0);
    const QStringList second_log = logMessages().mid(first_log.size());
    EXPECT_TRUE(second_log.contains("launcher: no need to upgrade"));
    EXPECT_FALSE(second_log.join('\n').contains("extract package"));
    EXPECT_EQ(startedClients(2), QStringList({"new", "new"}));
}

TEST_F(LauncherRuns, UpgradeStopsTheRunningClientFirst)
{
    if (!pidNamespaceAvailable())
        GTEST_SKIP() << "unshare cannot create a PID namespace here";
    installForUser(4, "old");
    shipInBundle(5, "new");

    const QMap<QString, QString> results = runInPidNamespace(R"sh(
sleep 30 &
client=$!
echo "pid=$client" > "$HOME/.Drovia/ui.pid"
"$LAUNCHER" > /dev/null 2>&1
echo "launcher=$?"
wait $client
echo "client=$?"
while [ ! -s "$HOME/.Drovia/started" ]; do sleep 0.1; done
)sh");

    EXPECT_EQ(results.value("launcher"), "0");
    EXPECT_EQ(results.value("client"), "143") << "the client should end by SIGTERM";
    EXPECT_EQ(installedBuild(), "5");
    EXPECT_TRUE(backupFolders().isEmpty());
    EXPECT_EQ(startedClients(1), QStringList({"new"}));
    EXPECT_TRUE(logMessages().contains("mac/mac-service: local appdata exist"));
}

// The package the build made, with the real demo client, which must write
// its pid file and leave cleanly, removing it, when asked to stop.
TEST_F(LauncherRuns, BuiltPackageStartsTheDemoClient)
{
    if (!pidNamespaceAvailable())
        GTEST_SKIP() << "unshare cannot create a PID namespace here";
    shipBuiltPackage();

    const QMap<QString, QString> results = runInPidNamespace(R"sh(
"$LAUNCHER" > /dev/null 2>&1
echo "launcher=$?"
pid_file="$HOME/.Drovia/ui.pid"
for i in $(seq 100); do [ -s "$pid_file" ] && break; sleep 0.1; done
pid=$(sed -n 's/^pid=\([0-9][0-9]*\)$/\1/p' "$pid_file")
[ -n "$pid" ] || exit 0
echo "client=$(readlink /proc/$pid/exe)"
kill -TERM "$pid"
for i in $(seq 100); do [ -e "$pid_file" ] || break; sleep 0.1; done
[ -e "$pid_file" ] && echo "pid_file=left" || echo "pid_file=removed"
)sh");

    EXPECT_EQ(results.value("launcher"), "0");
    EXPECT_EQ(results.value("client"), userPath("Drovia.app/Contents/MacOS/cloud-ui"));
    EXPECT_EQ(results.value("pid_file"), "removed");
}

TEST_F(LauncherRuns, FailedUpgradeRollsBackAndStartsTheOldClient)
{
    installForUser(4, "old");
    shipDamagedPackage(5);

    const LauncherRun run = runLauncher();

    EXPECT_EQ(run.exit_code, 0);
    EXPECT_EQ(installedBuild(), "4");
    EXPECT_TRUE(backupFolders().isEmpty());
    EXPECT_EQ(startedClients(1), QStringList({"old"}));
    const QStringList log = logMessages();
    EXPECT_TRUE(log.contains("cloud-service: Failed to extract package, rollback to old installation"));
    EXPECT_TRUE(log.contains("launcher: Failed to upgrade package"));
    EXPECT_EQ(log.last(), "launcher: done");
}

// The first launcher spends a few seconds waiting for a client that takes
// its time to exit; a second launcher started meanwhile must leave at once.
TEST_F(LauncherRuns, SecondInstanceLeavesWhileTheFirstRuns)
{
    if (!pidNamespaceAvailable())
        GTEST_SKIP() << "unshare cannot create a PID namespace here";
    installForUser(4, "old");
    shipInBundle(5, "new");

    const QMap<QString, QString> results = runInPidNamespace(R"sh(
( trap 'sleep 2; exit 0' TERM; while true; do sleep 1; done ) &
echo "pid=$!" > "$HOME/.Drovia/ui.pid"
"$LAUNCHER" > /dev/null 2>&1 &
first=$!
until grep -q "local appdata exist" "$LOG" 2>/dev/null; do sleep 0.05; done
"$LAUNCHER" > second.out 2>&1
echo "second=$?"
wait $first
echo "first=$?"
while [ ! -s "$HOME/.Drovia/started" ]; do sleep 0.1; done
)sh");

    EXPECT_EQ(results.value("second"), "0");
    EXPECT_EQ(results.value("first"), "0");
    EXPECT_EQ(installedBuild(), "5");
    EXPECT_EQ(startedClients(1), QStringList({"new"}));
    const QStringList log = logMessages();
    EXPECT_EQ(log.count("main: app has already launched, return"), 1);
    EXPECT_EQ(log.count("launcher: running"), 1);
}

TEST_F(LauncherRuns, UnwritableLogFolderSendsMessagesToStandardError)
{
    ASSERT_TRUE(writeFile(userPath("log"), "a file where the log folder belongs"));
    shipDamagedPackage(5);

    const LauncherRun run = runLauncher();

    EXPECT_EQ(run.exit_code, 0);
    const QStringList messages = messagesIn(run.err);
    EXPECT_TRUE(messages.contains("launcher: Failed to upgrade package")) << run.err.toStdString();
    EXPECT_FALSE(messages.contains("launcher: running")) << "the level file is read only with a log file";
    EXPECT_TRUE(QFileInfo(userPath("log")).isFile());
}

// The language module reports its choice on the toolkit's debug channel.
TEST_F(LauncherRuns, LanguageFollowsTheSystemLocale)
{
    shipInBundle(5, "new");
    const auto catalogued = [](const QString& code) {
        return QFileInfo::exists(QString(DROVIA_CATALOGUE_DIR "/%1.qm").arg(code))
                   ? code
                   : QStringLiteral("enu");
    };
    const QList<QPair<QStringList, QString>> cases = {
        {{"LC_ALL", "de_AT.UTF-8"}, catalogued("deu")},
        {{"LANG", "pt_PT.UTF-8"}, catalogued("ptg")},
        {{"LANG", "zh_TW.UTF-8"}, catalogued("cht")},
        {{"LANG", "fi_FI.UTF-8"}, "enu"},
        {{"LC_ALL", "C"}, "enu"},
    };
    for (const auto& [setting, expected] : cases) {
        QProcessEnvironment env = environment();
        env.remove("LC_ALL");
        env.remove("LANG");
        env.insert(setting.at(0), setting.at(1));
        const LauncherRun run = runLauncher(env);
        EXPECT_EQ(run.exit_code, 0);
        EXPECT_TRUE(run.err.contains("qPrintable(qstrDef)=[" + expected + "\n]"))
            << setting.join('=').toStdString() << " should choose " << expected.toStdString() << "\n"
            << run.err.toStdString();
    }
}

}  // namespace
