#include "sandbox.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

#include "files.h"
#include "install-layout.h"

namespace {

const int kTimeoutMs = 30000;
const int kClientStartTimeoutMs = 5000;
const char kLauncher[] = "/Contents/MacOS/launcher";
// "Zoë Zoë 用户 home", the second ë decomposed as some file systems store it.
const char kHomeName[] = "Zo\xc3\xab Zoe\xcc\x88 \xe7\x94\xa8\xe6\x88\xb7 home";

}  // namespace

void LauncherSandbox::SetUp()
{
    if (!qEnvironmentVariableIsSet("DROVIA_OWN_NAMESPACE"))
        GTEST_SKIP() << "needs namespaces of its own, which only root may make";
    home = sandbox.filePath(QString::fromUtf8(kHomeName));
    bundle = sandbox.filePath(layout::kBundleName);
    ASSERT_TRUE(QDir().mkpath(home) && QDir().mkpath(sandbox.filePath("tmp")));
    ASSERT_EQ(QProcess::execute("cp", {"-R", DROVIA_BUNDLE_DIR, bundle}), 0);
    ASSERT_TRUE(WriteBytes(bundle + "/" + layout::kLevelFile, "launcher_debug=7\nservice_debug=7\n"));
}

QStringList LauncherSandbox::StartLines() const
{
    return QString::fromStdString(ReadBytes(UserPath("started"))).split('\n', Qt::SkipEmptyParts);
}

QString LauncherSandbox::UserPath(const QString& relative) const
{
    return home + "/" + layout::kUserFolder + "/" + relative;
}

void LauncherSandbox::Ship(int build, const std::string& package)
{
    const QString resources = bundle + "/" + layout::kResourcesFolder + "/";
    ASSERT_TRUE(WriteBytes(resources + layout::kPackageArchive, package));
    ASSERT_TRUE(WriteBytes(resources + layout::kVersionFileName, VersionFile(build)));
}

void LauncherSandbox::InstallForUser(const std::vector<PackageEntry>& entries)
{
    ASSERT_TRUE(WriteEntries(UserPath(layout::kBundleName), entries));
}

void LauncherSandbox::MoveToNewHome(const QString& name)
{
    home = sandbox.filePath(name);
    ASSERT_TRUE(QDir().mkpath(home));
}

QProcessEnvironment LauncherSandbox::Environment() const
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("HOME", home);
    env.insert("TMPDIR", sandbox.filePath("tmp"));
    env.remove("XDG_RUNTIME_DIR");
    env.insert("QT_QPA_PLATFORM", "offscreen");
    env.insert("LC_ALL", "C");
    env.insert("LAUNCHER", bundle + kLauncher);
    return env;
}

// By a path relative to the sandbox, which "lib path" then shows.
void LauncherSandbox::StartLauncher(QProcess& launcher, const QProcessEnvironment& env,
                                    const QString& bundle_copy) const
{
    launcher.setProcessEnvironment(env);
    launcher.setWorkingDirectory(sandbox.path());
    const QStringList command =
        wrapper +
        QStringList{(bundle_copy.isEmpty() ? QString(layout::kBundleName) : bundle_copy) + kLauncher};
    launcher.start(command[0], command.mid(1));
}

LauncherRun LauncherSandbox::RunLauncher(const QProcessEnvironment& env)
{
    QProcess launcher;
    StartLauncher(launcher, env);
    LauncherRun run;
    const bool ended = launcher.waitForFinished(kTimeoutMs);
    if (!ended)
        launcher.kill();
    launcher.waitForFinished();
    run.exit_code = ended && launcher.exitStatus() == QProcess::NormalExit ? launcher.exitCode() : -1;
    run.out = QString::fromUtf8(launcher.readAllStandardOutput());
    run.err = QString::fromUtf8(launcher.readAllStandardError());
    return run;
}

void LauncherSandbox::StartClient(const char* behaviour) const
{
    QProcessEnvironment env = Environment();
    env.insert("DROVIA_STAND_IN", behaviour);
    QProcess client;
    client.setProcessEnvironment(env);
    const QStringList command =
        wrapper + QStringList{UserPath(layout::kBundleName) + "/" + layout::kClientExecutable};
    client.setProgram(command[0]);
    client.setArguments(command.mid(1));
    const int started_before = StartLines().size();
    ASSERT_TRUE(client.startDetached());
    ASSERT_EQ(StartedBuilds(started_before + 1).size(), started_before + 1);
}

QString LauncherSandbox::InstanceLockName(uid_t uid) const
{
    const QString id = QFileInfo(bundle + kLauncher).canonicalFilePath() + "\n" + QString::number(uid);
    return "qtsingleapp-launch-" + QCryptographicHash::hash(id.toUtf8(), QCryptographicHash::Sha1).toHex() +
           ".lock";
}

QStringList LauncherSandbox::LogMessages() const
{
    return MessagesIn(QString::fromStdString(ReadBytes(UserPath("log/launcher.log"))));
}

QStringList LauncherSandbox::StartedBuilds(int count) const
{
    // On a timeout the builds the caller compares tell what is missing.
    (void)QTest::qWaitFor([&] { return StartLines().size() >= count; }, kClientStartTimeoutMs);
    return StartLines().replaceInStrings(QRegularExpression(" .*"), "");
}

// Once every client running from this home has announced itself, however its
// launcher ended. An ended client, even one not reaped yet, has no executable left.
QStringList LauncherSandbox::RunningBuilds() const
{
    const QString installation = QFileInfo(UserPath("")).canonicalFilePath() + "/";
    const auto runs = [](const QString& pid) { return QFile::symLinkTarget("/proc/" + pid + "/exe"); };
    const auto unannounced = [&](const QString& pid) {
        return runs(pid).startsWith(installation) &&
               !(StartLines().join('\n') + '\n').contains(" " + pid + '\n');
    };
    const QStringList pids = QDir("/proc").entryList(QDir::Dirs);
    (void)QTest::qWaitFor([&] { return std::none_of(pids.cbegin(), pids.cend(), unannounced); },
                          kClientStartTimeoutMs);
    QStringList builds;
    for (const QString& line : StartLines()) {
        if (!runs(line.section(' ', 1, 1)).isEmpty())
            builds << line.section(' ', 0, 0);
    }
    return builds;
}

// Read as text: the settings reader keeps what it read of a path, and a
// rewrite of the same size within the same moment can escape it.
QString LauncherSandbox::InstalledBuild() const
{
    const QString version_file = UserPath(layout::kBundleName) + "/" + layout::kResourcesFolder + "/INFO";
    return QString::fromStdString(ReadBytes(version_file)).section("build_version=", 1).section('\n', 0, 0);
}

QStringList LauncherSandbox::Leftovers() const
{
    return QDir(UserPath(""))
        .entryList({QString(layout::kBundleName) + "_*"}, QDir::AllEntries | QDir::NoDotAndDotDot);
}
