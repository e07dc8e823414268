#ifndef LAUNCHER_SANDBOX_H
#define LAUNCHER_SANDBOX_H

#include <gtest/gtest.h>

#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

struct LauncherRun {
    int exit_code = -1;
    QString out;
    QString err;
};

bool writeFile(const QString& path, const QByteArray& content);
QByteArray readFile(const QString& path);
bool waitUntil(const std::function<bool()>& condition, int timeout_ms);
bool pidNamespaceAvailable();

// A copy of the built Drovia.app, a home folder for it, and ways to run it as
// a user would. Clients are stand-ins that append their label to
// ~/.Drovia/started.
class LauncherSandbox : public ::testing::Test {
protected:
    void SetUp() override;

    QString userPath(const QString& relative) const { return home + "/.Drovia/" + relative; }
    void shipInBundle(int build, const QString& label);
    void shipDamagedPackage(int build);
    void installForUser(int build, const QString& label);

    QProcessEnvironment environment() const;
    LauncherRun runLauncher() { return runLauncher(environment()); }
    LauncherRun runLauncher(const QProcessEnvironment& env);

    // Runs script with sh as the first process of a PID namespace of its own,
    // so that no pid read from a pid file can reach anything outside. The
    // script finds the launcher in $LAUNCHER and the log in $LOG, and reports
    // through "key=value" lines on standard output.
    void startInPidNamespace(QProcess& process, const QByteArray& script, const QProcessEnvironment& env);
    static QMap<QString, QString> finish(QProcess& process);
    QMap<QString, QString> runInPidNamespace(const QByteArray& script);

    // Log lines as "launcher: running".
    QStringList logMessages() const { return messagesIn(QString::fromUtf8(readFile(userPath("log/launcher.log")))); }
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
    bool writeBundleVersion(int build) const;
};

#endif  // LAUNCHER_SANDBOX_H
