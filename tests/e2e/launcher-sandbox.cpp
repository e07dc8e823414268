#include "launcher-sandbox.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>
#include <QThread>

namespace {

const int kProcessTimeoutMs = 30000;
const char kLauncher[] = "Drovia.app/Contents/MacOS/launcher";

bool copyTree(const QString& from, const QString& to)
{
    return QDir().mkpath(to) && QProcess::execute("cp", {"-RT", from, to}) == 0;
}

QByteArray versionFile(int build)
{
    return "[Version]\nmajor_version=3\nminor_version=2\nbuild_version=" + QByteArray::number(build) +
           "\nicon_overlay_version=0\n";
}

}  // namespace

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).absolutePath()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool waitUntil(const std::function<bool()>& condition, int timeout_ms)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > timeout_ms)
            return false;
        QThread::msleep(50);
    }
    return true;
}

bool pidNamespaceAvailable()
{
    static const bool available = QProcess::execute("unshare", {"-pf", "--mount-proc", "true"}) == 0;
    return available;
}

void LauncherSandbox::SetUp()
{
    ASSERT_TRUE(sandbox.isValid());
    home = sandbox.filePath("home");
    bundle = sandbox.filePath("Drovia.app");
    ASSERT_TRUE(QDir().mkpath(home) && QDir().mkpath(sandbox.filePath("tmp")));
    for (const char* part : {"/Contents/MacOS", "/Contents/Frameworks"})
        ASSERT_TRUE(copyTree(DROVIA_BUNDLE_DIR + QString(part), bundle + part));
    ASSERT_TRUE(writeFile(bundle + "/log/launcher.debug", "launcher_debug=7\nservice_debug=7\n"));
}

QString LauncherSandbox::stageClient(int build, const QString& label)
{
    const QString stage = sandbox.filePath("stage-" + label);
    const QString client = stage + "/Contents/MacOS/cloud-ui";
    EXPECT_TRUE(writeFile(client, "#!/bin/sh\necho " + label.toUtf8() + " >> \"$HOME/.Drovia/started\"\n"));
    EXPECT_TRUE(QFile::setPermissions(client, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_TRUE(writeFile(stage + "/Contents/Resources/INFO", versionFile(build)));
    return stage;
}

bool LauncherSandbox::writeBundleVersion(int build) const
{
    return writeFile(bundle + "/Contents/Resources/INFO", versionFile(build));
}

void LauncherSandbox::shipInBundle(int build, const QString& label)
{
    const QString package = bundle + "/Contents/Resources/package/drovia.vpk";
    ASSERT_EQ(QProcess::execute(MAKE_PACKAGE, {stageClient(build, label), package}), 0);
    ASSERT_TRUE(writeBundleVersion(build));
}

void LauncherSandbox::shipDamagedPackage(int build)
{
    ASSERT_TRUE(writeFile(bundle + "/Contents/Resources/package/drovia.vpk", "PK\x03\x04 not a zip archive"));
    ASSERT_TRUE(writeBundleVersion(build));
}

void LauncherSandbox::installForUser(int build, const QString& label)
{
    ASSERT_TRUE(copyTree(stageClient(build, label), userPath("Drovia.app")));
}

QProcessEnvironment LauncherSandbox::environment() const
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("HOME", home);
    env.insert("TMPDIR", sandbox.filePath("tmp"));
    env.insert("QT_QPA_PLATFORM", "offscreen");
    env.insert("LC_ALL", "C");
    env.insert("LANG", "C");
    env.insert("LOG", userPath("log/launcher.log"));
    env.insert("LAUNCHER", kLauncher);
    return env;
}

LauncherRun LauncherSandbox::runLauncher(const QProcessEnvironment& env)
{
    QProcess launcher;
    launcher.setProcessEnvironment(env);
    launcher.setWorkingDirectory(sandbox.path());
    launcher.start(kLauncher, QStringList());
    LauncherRun run;
    if (!launcher.waitForFinished(kProcessTimeoutMs)) {
        launcher.kill();
        launcher.waitForFinished();
        return run;
    }
    run.exit_code = launcher.exitStatus() == QProcess::NormalExit ? launcher.exitCode() : -1;
    run.out = QString::fromUtf8(launcher.readAllStandardOutput());
    run.err = QString::fromUtf8(launcher.readAllStandardError());
    return run;
}

void LauncherSandbox::startInPidNamespace(QProcess& process, const QByteArray& script,
                                          const QProcessEnvironment& env)
{
    ASSERT_TRUE(writeFile(sandbox.filePath("run.sh"), script));
    process.setProcessEnvironment(env);
    process.setWorkingDirectory(sandbox.path());
    process.start("unshare", {"-pf", "--mount-proc", "sh", sandbox.filePath("run.sh")});
    ASSERT_TRUE(process.waitForStarted(kProcessTimeoutMs));
}

QMap<QString, QString> LauncherSandbox::finish(QProcess& process)
{
    QMap<QString, QString> results;
    if (!process.waitForFinished(kProcessTimeoutMs)) {
        process.kill();
        process.waitForFinished();
        return results;
    }
    for (const QByteArray& line : process.readAllStandardOutput().split('\n')) {
        const int equals = line.indexOf('=');
        if (equals > 0)
            results.insert(QString::fromUtf8(line.left(equals)), QString::fromUtf8(line.mid(equals + 1)));
    }
    return results;
}

QMap<QString, QString> LauncherSandbox::runInPidNamespace(const QByteArray& script)
{
    QProcess process;
    startInPidNamespace(process, script, environment());
    return finish(process);
}

// "Nov 16 20:31:15 [DEBUG] launcher(57): running" -> "launcher: running"
QStringList LauncherSandbox::messagesIn(const QString& text)
{
    static const QRegularExpression line_shape(QStringLiteral(R"(\] ([\w/-]+)\(\d+\): (.*)$)"));
    QStringList messages;
    for (const QString& line : text.split('\n', Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch match = line_shape.match(line);
        if (match.hasMatch())
            messages << match.captured(1) + ": " + match.captured(2);
    }
    return messages;
}

QStringList LauncherSandbox::startedClients(int count) const
{
    const auto read = [this] {
        return QString::fromUtf8(readFile(userPath("started"))).split('\n', Qt::SkipEmptyParts);
    };
    waitUntil([&] { return read().size() >= count; }, 5000);
    return read();
}

QString LauncherSandbox::installedBuild() const
{
    return QSettings(userPath("Drovia.app/Contents/Resources/INFO"), QSettings::IniFormat)
        .value("Version/build_version")
        .toString();
}

QStringList LauncherSandbox::backupFolders() const
{
    return QDir(home + "/.Drovia").entryList({"Drovia.app_tmp*"}, QDir::AllEntries | QDir::NoDotAndDotDot);
}
