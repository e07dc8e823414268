// Sessions as they are met: a client in an odd state, a launcher run as root,
// odd homes and runtime folders, a broken standard output. The launcher runs
// as an unprivileged user; each row in a home and namespaces of its own.
#include <sys/stat.h>
#include <unistd.h>

#include <QTest>

#include "files.h"
#include "install-layout.h"
#include "sandbox.h"

namespace {

const char kUser[] = "4321";

struct Session {
    const char* name;
    void (*arrange)(LauncherSandbox&);  // with build 4 installed, build 5 shipped
    const char* shell;                  // run by sh -c before the launcher, which is "$0"
    int exit_code;
    const char* err;         // what standard error says, at least
    bool client_of_build_5;  // else no client runs
    friend void PrintTo(const Session& session, std::ostream* out) { *out << session.name; }
};

class Sessions : public LauncherSandbox, public ::testing::WithParamInterface<Session> {};

// Another user's lock file, open to all, in folders anyone may write.
void PlantLocks(LauncherSandbox& s)
{
    for (const QString& folder : {s.sandbox.filePath("run"), s.sandbox.filePath("tmp")}) {
        const QByteArray lock = QFile::encodeName(folder + "/" + s.InstanceLockName(atoi(kUser)));
        ASSERT_TRUE(QDir().mkpath(folder) && chmod(QFile::encodeName(folder), 01777) == 0 &&
                    HoldLock(lock) >= 0 && chmod(lock, 0666) == 0);
    }
}

// A stale pid file, padded with the zero bytes a crash can leave, names the
// user's editor by now, which leaves a mark when signalled; no file names the
// client.
void PidFileOfAnotherProgram(LauncherSandbox& s)
{
    qint64 editor = 0;
    const QStringList trap = {"sh", "-c", "trap 'touch signalled; exit' TERM; sleep 30 & wait"};
    ASSERT_TRUE(QProcess::startDetached(s.wrapper[0], s.wrapper.mid(1) + trap, s.home, &editor));
    s.StartClient();
    const std::string padding(64, '\0');
    ASSERT_TRUE(WriteBytes(s.UserPath(layout::kPidFile), "pid=" + std::to_string(editor) + "\n" + padding));
}

// What lies beside the home, in it but for the installation, and in the temporary folders.
QString Outside(const LauncherSandbox& s)
{
    QStringList found;
    const auto all = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System;
    for (const QString& folder : {QDir::tempPath(), s.sandbox.path(), s.home, s.sandbox.filePath("tmp")})
        found << QDir(folder).entryList(all);
    return found.join('\n');
}

TEST_P(Sessions, OneClientAndNothingOutsideTheInstallation)
{
    Ship(5);
    InstallForUser(ClientBundle(4));
    ASSERT_TRUE(chmod(QFile::encodeName(sandbox.path()), 0755) == 0 &&
                QProcess::execute("chown", {"-R", kUser, home}) == 0);
    wrapper = QStringList{"setpriv", "--reuid", kUser, "--regid", kUser, "--clear-groups"};
    GetParam().arrange(*this);
    wrapper << QStringList{"sh", "-c", QString(GetParam().shell) + "; exec \"$0\""};
    const QString outside = Outside(*this);

    const LauncherRun run = RunLauncher();
    EXPECT_EQ(run.exit_code, GetParam().exit_code);
    EXPECT_TRUE(run.err.contains(GetParam().err)) << run.err.toStdString();
    EXPECT_EQ(RunningBuilds().join(' ').toStdString(), GetParam().client_of_build_5 ? "5" : "");
    EXPECT_EQ(Outside(*this).toStdString(), outside.toStdString());
}

const Session kSessions[] = {
    // clang-format off
    {"ClientWithoutItsPidFileYet", [](LauncherSandbox& s) { s.InstallForUser(ClientBundle(5)); s.StartClient(); ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::remove(s.UserPath(layout::kPidFile)); })); }, ":", 0, "", true},
    {"PidFileOfAnotherProgram", PidFileOfAnotherProgram, ":", 0, "", true},
    {"ClientExecutableDeleted", [](LauncherSandbox& s) { s.StartClient(); QFile::remove(s.UserPath(layout::kBundleName) + "/" + layout::kClientExecutable); }, ":", 0, "", true},
    {"ClientBundleDeleted", [](LauncherSandbox& s) { s.StartClient(); QDir(s.UserPath(layout::kBundleName)).removeRecursively(); }, ":", 0, "", true},
    {"RootForTheUsersHome", [](LauncherSandbox& s) { s.wrapper.clear(); QDir(s.UserPath("")).removeRecursively(); }, ":", 1, "as root", false},
    {"InstallationOfRoot", [](LauncherSandbox& s) { ASSERT_EQ(chown(QFile::encodeName(s.UserPath("")), 0, 0), 0); }, ":", 0, "cannot write", false},
    {"SharedRuntimeFolder", PlantLocks, "export XDG_RUNTIME_DIR=\"$PWD/run\"", 0, "", true},
    {"NoRuntimeNorTemporaryFolder", [](LauncherSandbox&) {}, "unset TMPDIR", 0, "", true},
    {"HomeInLegacyEncodings", [](LauncherSandbox&) { const QByteArray home = QFile::encodeName(QDir::tempPath()) + "/J\xF6rg-\xC6\xFC\xCB\xDC-\xD3\xC3\xBB\xA7-\xE9\xF7\xE1\xEE"; ASSERT_TRUE(mkdir(home, 0755) == 0 && chown(home, atoi(kUser), 0) == 0 && qputenv("RAW_HOME", home)); }, "HOME=$RAW_HOME", 1, "UTF-8", false},
    {"StandardOutputClosed", [](LauncherSandbox&) {}, "exec >&-", 0, "", true},
    {"StandardOutputBroken", [](LauncherSandbox&) { int ends[2]; ASSERT_TRUE(pipe(ends) == 0 && close(ends[0]) == 0 && dup2(ends[1], 7) == 7); }, "exec >&7", 0, "", true},
    // clang-format on
};
INSTANTIATE_TEST_SUITE_P(, Sessions, ::testing::ValuesIn(kSessions),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
