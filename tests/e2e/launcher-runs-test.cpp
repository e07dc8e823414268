#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

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
    EXPECT_FALSE(first_log.contains("launcher: no need to upgrade"));
    EXPECT_EQ(first_log.value(first_log.size() - 1), "launcher: done");

    EXPECT_EQ(runLauncher().exit_code, 0);
    const QStringList second_log = logMessages().mid(first_log.size());
    EXPECT_TRUE(second_log.contains("launcher: no need to upgrade"));
    EXPECT_FALSE(second_log.join('\n').contains("extract package"));
    EXPECT_EQ(startedClients(2), QStringList({"new", "new"}));
}

TEST_F(LauncherRuns, FailedUpgradeRollsBackAndStartsTheOldClient)
{
    installForUser(4, "old");
    shipDamagedPackage(5);

    EXPECT_EQ(runLauncher().exit_code, 0);
    EXPECT_EQ(installedBuild(), "4");
    EXPECT_TRUE(backupFolders().isEmpty());
    EXPECT_EQ(startedClients(1), QStringList({"old"}));
    const QStringList log = logMessages();
    EXPECT_TRUE(log.contains("cloud-service: Failed to extract package, rollback to old installation"));
    EXPECT_EQ(log.value(log.size() - 1), "launcher: done");
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
}

// The language module reports its choice on the toolkit's debug channel.
TEST_F(LauncherRuns, LanguageFollowsTheSystemLocale)
{
    shipInBundle(5, "new");
    const auto catalogued = [](const char* code) {
        return QFileInfo::exists(DROVIA_CATALOGUE_DIR "/" + QString(code) + ".qm") ? code : "enu";
    };
    const struct {
        const char* name;
        const char* value;
        const char* language;
    } cases[] = {{"LC_ALL", "de_AT.UTF-8", catalogued("deu")},
                 {"LANG", "pt_PT.UTF-8", catalogued("ptg")},
                 {"LANG", "fi_FI.UTF-8", "enu"}};
    for (const auto& c : cases) {
        QProcessEnvironment env = environment();
        env.remove("LC_ALL");
        env.remove("LANG");
        env.insert(c.name, c.value);
        const LauncherRun run = runLauncher(env);
        EXPECT_EQ(run.exit_code, 0);
        EXPECT_TRUE(run.err.contains(QString("qPrintable(qstrDef)=[%1\n]").arg(c.language)))
            << c.value << " should choose " << c.language << "\n" << run.err.toStdString();
    }
}

// The old client takes two seconds to leave after SIGTERM; a second launcher
// started meanwhile must leave at once.
const char kUpgradeOverRunningClient[] = R"sh(
( trap 'echo TERM > "$HOME/.Drovia/stopped"; sleep 2; exit 0' TERM; while true; do sleep 1; done ) &
echo "pid=$!" > "$HOME/.Drovia/ui.pid"
"$LAUNCHER" > launcher.out 2>&1 &
first=$!
until grep -q "local appdata exist" "$LOG" 2>/dev/null; do sleep 0.05; done
"$LAUNCHER" > /dev/null 2>&1
echo "second=$?"
wait $first
echo "first=$?"
while [ ! -s "$HOME/.Drovia/started" ]; do sleep 0.1; done
)sh";

class UpgradeOverRunningClient : public LauncherSandbox {
protected:
    void run(const QProcessEnvironment& env, const std::function<void()>& meanwhile)
    {
        if (!pidNamespaceAvailable())
            GTEST_SKIP() << "unshare cannot create a PID namespace here";
        installForUser(4, "old");
        shipInBundle(5, "new");
        QProcess script;
        startInPidNamespace(script, kUpgradeOverRunningClient, env);
        meanwhile();
        const QMap<QString, QString> results = finish(script);
        EXPECT_EQ(results.value("first"), "0") << readFile(sandbox.filePath("launcher.out")).toStdString();
        EXPECT_EQ(results.value("second"), "0");
        EXPECT_EQ(readFile(userPath("stopped")), "TERM\n");
        EXPECT_EQ(installedBuild(), "5");
        EXPECT_TRUE(backupFolders().isEmpty());
        EXPECT_EQ(startedClients(1), QStringList({"new"}));
        const QStringList log = logMessages();
        EXPECT_EQ(log.count("main: app has already launched, return"), 1);
        EXPECT_EQ(log.count("launcher: running"), 1);
    }
};

TEST_F(UpgradeOverRunningClient, StopsItFirstWhileASecondInstanceLeaves)
{
    run(environment(), [] {});
}

// Under a real X server the progress dialog must be on screen, with its title,
// while the old client stops.
TEST_F(UpgradeOverRunningClient, ShowsTheDialogUnderX)
{
    for (const char* tool : {"Xvfb", "xwininfo", "import"})
        if (QStandardPaths::findExecutable(tool).isEmpty())
            GTEST_SKIP() << tool << " is not installed";
    QProcess xvfb;  // picks a free display itself and reports it
    xvfb.start("Xvfb", {"-displayfd", "1", "-nolisten", "tcp", "-screen", "0", "800x600x24"});
    ASSERT_TRUE(xvfb.waitForStarted() && xvfb.waitForReadyRead());
    const QString display = ":" + QString::fromLatin1(xvfb.readLine().trimmed());
    const auto windowTree = [&display] {
        QProcess xwininfo;
        xwininfo.start("xwininfo", {"-display", display, "-root", "-tree"});
        xwininfo.waitForFinished();
        return QString::fromUtf8(xwininfo.readAllStandardOutput());
    };
    QProcessEnvironment env = environment();
    env.insert("QT_QPA_PLATFORM", "xcb");
    env.insert("DISPLAY", display);

    run(env, [&] {
        // "0x400007 "Velmora Drovia": ("launcher" "launcher")  400x97+0+0  +0+0"
        const QRegularExpression dialog(R"("Velmora Drovia": \("launcher" [^)]*\)\s+400x\d+)");
        const bool shown = waitUntil([&] { return dialog.match(windowTree()).hasMatch(); }, 4000);
        ASSERT_TRUE(shown) << windowTree().toStdString();
        const QString screenshot = E2E_ARTIFACT_DIR "/upgrade-dialog.png";
        QFile::remove(screenshot);
        EXPECT_EQ(QProcess::execute("import", {"-display", display, "-window", "root", screenshot}), 0);
        EXPECT_GT(QFileInfo(screenshot).size(), 0);
    });
    xvfb.terminate();
    xvfb.waitForFinished();
}

}  // namespace
