#ifndef SANDBOX_H
#define SANDBOX_H

#include <gtest/gtest.h>

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include "packages.h"

struct LauncherRun {
    int exit_code = -1;  // -1 when it crashed or did not end in time
    QString out;
    QString err;
};

// A copy of the built Drovia.app and a scratch home, named with blanks and composed and
// decomposed accents, where the launcher runs as a user would. Packages carry the stand-in
// client, which appends "<build> <pid>" to ~/.Drovia/started when it starts. Skips outside
// namespaces of its own (in-own-namespace.sh).
class LauncherSandbox : public ::testing::Test {
public:  // to the rows of tables too
    void SetUp() override;

    QString UserPath(const QString& relative) const;
    void Ship(int build, const std::string& package);  // into the bundle, with its version file
    void Ship(int build) { Ship(build, MakeArchive(ClientBundle(build))); }
    void InstallForUser(const std::vector<PackageEntry>& entries);
    void MoveToNewHome(const QString& name);

    QProcessEnvironment Environment() const;
    void StartLauncher(QProcess& launcher, const QProcessEnvironment& env,
                       const QString& bundle_copy = {}) const;
    LauncherRun RunLauncher(const QProcessEnvironment& env);
    LauncherRun RunLauncher() { return RunLauncher(Environment()); }
    // The installed client, started detached as an earlier session would have.
    void StartClient(const char* behaviour = "") const;
    // The single-instance lock's file name for the launcher run by user uid.
    QString InstanceLockName(uid_t uid) const;

    QStringList LogMessages() const;
    QStringList StartLines() const;                  // "<build> <pid>" for each client started
    QStringList StartedBuilds(int count = 1) const;  // once at least count clients started
    QStringList RunningBuilds() const;
    QString InstalledBuild() const;
    QStringList Leftovers() const;  // backups and staging folders beside the bundle

    QTemporaryDir sandbox;
    QString home;
    QString bundle;
    // What the launcher and the client run through ("setpriv ...", "sh -c ...").
    QStringList wrapper;
};

#endif  // SANDBOX_H
