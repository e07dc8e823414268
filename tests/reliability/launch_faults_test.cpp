// Whole-program runs under faults: a home that fills up, damaged packages,
// ten launchers at once, and a home folder with spaces and non-ASCII names.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

#include <iostream>

#include "reliability-sandbox.h"

namespace {

const int kTooBigForTheDisk = 4 * 1024 * 1024;
const char kSmallDisk[] = "size=1m";
const int kConcurrentLaunchers = 10;

using LaunchFaults = ReliabilitySandbox;

TEST_F(LaunchFaults, FullDiskRollsBackAndStartsTheOldClient)
{
    if (!mountNamespaceAvailable())
        GTEST_SKIP() << "unshare cannot create a mount namespace here";
    installForUser(4, "old");
    shipLargePackage(5, "new", 1, kTooBigForTheDisk);
    const TreeSnapshot old_bundle = userBundle();
    const QString after = sandbox.filePath("after");

    QProcessEnvironment env = environment();
    env.insert("SIZE", kSmallDisk);
    env.insert("AFTER", after);
    const QMap<QString, QString> results = runScript({"unshare", "-m"}, R"(
cp -a "$HOME" "$TMPDIR/seed" || exit 1
mount -t tmpfs -o "$SIZE" drovia-full "$HOME" || { echo "mount=failed"; exit 0; }
cp -a "$TMPDIR/seed/." "$HOME/"
"$LAUNCHER" > /dev/null 2>&1
echo "launcher=$?"
i=0
while [ ! -s "$HOME/.Drovia/started" ] && [ $i -lt 100 ]; do sleep 0.05; i=$((i+1)); done
cp -a "$HOME/.Drovia" "$AFTER"
)", env);
    if (results.value("mount") == "failed")
        GTEST_SKIP() << "mounting a small file system is not allowed here";

    EXPECT_EQ(results.value("launcher"), "0");
    EXPECT_EQ(DescribeDifferences(old_bundle, SnapshotOfFolder(after + "/Drovia.app")), "");
    EXPECT_EQ(QString::fromUtf8(readFile(after + "/started")), "old\n");
    EXPECT_TRUE(QDir(after).entryList({"Drovia.app_tmp*"}, QDir::AllEntries).isEmpty());
    const QStringList log = messagesIn(QString::fromUtf8(readFile(after + "/log/launcher.log")));
    EXPECT_TRUE(log.contains("cloud-service: Failed to extract package, rollback to old installation"))
        << log.join('\n').toStdString();
    const QStringList failure = log.filter(QRegularExpression("^extractor: archive_(read_extract2|write_finish_entry) failed"));
    ASSERT_EQ(failure.size(), 1) << log.join('\n').toStdString();
    std::cout << "full disk: " << failure.first().toStdString() << "\n";
}

// One damaged package per archive format through the real program.
TEST_F(LaunchFaults, DamagedPackagesRollBackInEveryFormat)
{
    installForUser(4, "old");
    shipInBundle(5, "new");
    const QString stage = sandbox.filePath("damaged-stage");
    ASSERT_TRUE(QDir().mkpath(stage));
    ASSERT_EQ(QProcess::execute("bsdtar", {"-xf", packagePath(), "-C", stage}), 0);
    ASSERT_TRUE(writeFile(stage + "/Contents/Resources/filler", QByteArray(200000, 'x')));
    const TreeSnapshot old_bundle = userBundle();
    const QList<QStringList> formats = {
        {"--format", "ustar", "-z"}, {"--format", "zip"}, {"--format", "ustar", "-J"}, {"--format", "ustar", "--zstd"}};
    for (const QStringList& format : formats) {
        const QString label = format.join(' ');
        const QString whole = sandbox.filePath("whole");
        ASSERT_EQ(QProcess::execute("bsdtar", QStringList{"-c", "-f", whole} + format + QStringList{"-C", stage, "."}), 0)
            << label.toStdString();
        const QByteArray bytes = readFile(whole);
        ASSERT_TRUE(writeFile(packagePath(), bytes.left(bytes.size() / 2)));
        QFile::remove(userPath("started"));

        const LauncherRun run = runLauncher();

        EXPECT_EQ(run.exit_code, 0) << label.toStdString();
        EXPECT_EQ(DescribeDifferences(old_bundle, userBundle()), "") << label.toStdString();
        EXPECT_EQ(startedClients(1), QStringList{"old"}) << label.toStdString();
        EXPECT_TRUE(backupFolders().isEmpty()) << label.toStdString();
    }
    EXPECT_EQ(logMessages().count("cloud-service: Failed to extract package, rollback to old installation"),
              formats.size());
}

// The first launcher waits about five seconds for a client that ignores
// SIGTERM; the other nine start meanwhile and must leave.
TEST_F(LaunchFaults, TenLaunchersAtOnceUpgradeOnce)
{
    if (!pidNamespaceAvailable())
        GTEST_SKIP() << "unshare cannot create a PID namespace here";
    installForUser(4, "old");
    shipLargePackage(5, "new", 200, 4096);

    const QMap<QString, QString> results = runInPidNamespace(R"(
( trap '' TERM; while true; do sleep 1; done ) &
echo "pid=$!" > "$HOME/.Drovia/ui.pid"
launchers=""
for i in 1 2 3 4 5 6 7 8 9 10; do
    "$LAUNCHER" > /dev/null 2>&1 &
    launchers="$launchers $!"
done
failed=0
for pid in $launchers; do wait "$pid" || failed=$((failed+1)); done
echo "failed=$failed"
while [ ! -s "$HOME/.Drovia/started" ]; do sleep 0.1; done
)");

    EXPECT_EQ(results.value("failed"), "0");
    EXPECT_EQ(DescribeDifferences(SnapshotOfArchive(packagePath()), userBundle()), "");
    EXPECT_EQ(startedClients(1), QStringList{"new"});
    EXPECT_TRUE(backupFolders().isEmpty());
    const QStringList log = logMessages();
    EXPECT_EQ(log.count("main: app has already launched, return"), kConcurrentLaunchers - 1);
    EXPECT_EQ(log.count("launcher: running"), 1);
    EXPECT_EQ(log.filter("cloud-service: extract package").size(), 1);
}

// Thresholds beyond the 32-bit range are clamped: a huge one lets every
// message through, a hugely negative one silences even errors.
TEST_F(LaunchFaults, HugeLevelNumbersAreClamped)
{
    ASSERT_TRUE(writeFile(bundle + "/log/launcher.debug", "launcher_debug=99999999999999999999999\n"
                                                          "service_debug=-99999999999999999999999\n"));
    shipDamagedPackage(5);

    const LauncherRun run = runLauncher();

    EXPECT_EQ(run.exit_code, 0);
    const QStringList log = logMessages();
    EXPECT_TRUE(log.contains("launcher: running"));
    EXPECT_TRUE(log.contains("launcher: Failed to upgrade package"));
    EXPECT_TRUE(log.filter("cloud-service:").isEmpty()) << log.join('\n').toStdString();
}

// Composed and decomposed accents stay as typed: the file layer may look
// names up in NFC, but a byte-exact file system only finds them as written.
TEST_F(LaunchFaults, HomeWithSpacesAndNonAsciiNames)
{
    const QStringList homes = {QString::fromUtf8("Zo\xc3\xab B\xc3\xa9n\xc3\xa9" "dicte/\xe7\x94\xa8\xe6\x88\xb7 home"),
                               QString::fromUtf8("Zoe\xcc\x88 decomposed/  two  spaces ")};
    for (const QString& name : homes) {
        home = sandbox.filePath(name);
        ASSERT_TRUE(QDir().mkpath(home));
        installForUser(4, "old");
        shipInBundle(5, "new");

        const LauncherRun run = runLauncher();

        EXPECT_EQ(run.exit_code, 0) << name.toStdString();
        EXPECT_EQ(installedBuild(), "5") << name.toStdString();
        EXPECT_EQ(startedClients(1), QStringList{"new"}) << name.toStdString();
        EXPECT_TRUE(backupFolders().isEmpty()) << name.toStdString();
        EXPECT_EQ(logMessages().last(), "launcher: done") << name.toStdString();
    }
}

}  // namespace
