#ifndef LAUNCHER_SANDBOX_H
#define LAUNCHER_SANDBOX_H

#include <gtest/gtest.h>

#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

struct LauncherRun {
    int exit_code = -1;
    QString out;
    QString err;
};

bool writeFile(const QString& path, const QByteArray& content);
QByteArray readFile(const QString& path);
bool waitUntil(const std::function<bool()>& condition, int timeout_ms);
bool pidNamespaceAvailable();

// A copy of the built Drovia.app with its own version file, package and level
// file, a home folder for it, and ways to run it as a user would. Clients are
// stand-ins that append their label to ~/.Drovia/started.
class LauncherSandbox : public ::testing::Test {
protected:
    void SetUp() override;

    QString userPath(const QString& relative) const;

    void shipInBundle(int build, const QString& label);
    // The package and version file that the build made, with the demo client.
    void shipBuiltPackage();
    void shipDamagedPackage(int build);
    void installForUser(int build, const QString& label);

    QProcessEnvironment environment() const;
    LauncherRun runLauncher();
    LauncherRun runLauncher(const QProcessEnvironment& env);

    // Runs script with sh as the first process of a PID namespace of its own,
    // so that no pid read from a pid file can reach anything outside. The
    // script finds the launcher in $LAUNCHER and the log in $LOG, and reports
    // through "key=value" lines on standard output.
    void startInPidNamespace(QProcess& process, const QByteArray& script, const QProcessEnvironment& env);
    static QMap<QString, QString> finish(QProcess& process);
    QMap<QString, QString> runInPidNamespace(const QByteArray& script);

    // Log lines as "launcher: running".
    QStringList logMessages() const;
    static QStringList messagesIn(const QString& text);

    // The labels of the clients started so far, once count of them are in.
    QStringList startedClients(int count) const;
    QString installedBuild() const;
    QStringList backupFolders() const;

    QTemporaryDir sandbox;
    QString home;
    QString bundle;

private:
    QString stageClient(int build, const QString& label);
    QString packagePath() const;
    static bool writeVersion(const QString& path, int build);
};

#endif  // LAUNCHER_SANDBOX_H
