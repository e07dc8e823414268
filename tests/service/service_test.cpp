#include <archive.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <QElapsedTimer>
#include <QThread>
#include <cerrno>
#include <cstring>
#include <deque>
#include "service-fixture.h"

extern char** environ;

namespace {

TEST_F(ServiceTest, UpgradeDecisionFollowsBuildNumbersAndClientPresence)
{
    UseBundle();
    // Version lines of the user's and the bundle's version files; null: no file.
    const struct { const char *source, *target; bool client, upgrade; } rows[] = {
        {"build_version=120", "build_version=121", true, true},
        {"build_version=121", "build_version=121", true, false},
        {"build_version=122", "build_version=121", true, false},
        {"build_version=122", "build_version=121", false, true},
        {nullptr, "build_version=121", false, true},
        {"build_version=12a", "build_version=12", true, false},
        {"build_version=abc", "build_version=1", true, true},
        {"build_version=5", nullptr, true, false},
        {"major_version=3\nbuild_version=9", "major_version=4\nbuild_version=9", true, false},
        {"build_version=9", "[Other]\nbuild_version=99", true, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        QDir(Home() + "/.Drovia").removeRecursively();
        QFile::remove(BundleResources() + "/INFO");
        if (row.target)
            WriteBundleVersion(VersionFile(row.target));
        ASSERT_TRUE(!row.source || WriteBytes(UserApp() + "/Contents/Resources/INFO",
                                              VersionFile(row.source)));
        ASSERT_TRUE(!row.client || WriteBytes(UserClient(), "client"));
        MacService service;
        service.PreUpgrade();
        EXPECT_EQ(service.IsNeedUpgrade(), row.upgrade);
    }
}

TEST_F(ServiceTest, InstallationBacksUpCleansUpAndRollsBack)
{
    UseBundle();
    WriteBundleVersion(VersionFile("build_version=200"));
    const TestEntry client = {"Contents/MacOS/cloud-ui", "new client"};
    const std::string good = MakeArchive(ARCHIVE_FORMAT_ZIP, ARCHIVE_FILTER_NONE, {client});
    const std::string bad = MakeArchive(ARCHIVE_FORMAT_ZIP, ARCHIVE_FILTER_NONE,
                                        {client, {"../refused", "out"}});  // fails after the client
    const auto backup = [&](char i) { return UserApp() + "_tmp" + (i > '0' ? QString(i) : ""); };
    // An old installation, the backup indices that earlier runs left, and what is left after.
    const struct { bool old; const char* occupied; const std::string& package; int result;
                   const char *client, *left; } rows[] = {
        {false, "0", good, 0, "new client", ""},
        {true, "02", good, 0, "new client", "2"},
        {true, "0123456789", good, -1, "old client", "0123456789"},
        {true, "", bad, -1, "old client", ""},
        {false, "", bad, -1, "new client", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        QDir(Home() + "/.Drovia").removeRecursively();
        WritePackage(row.package);
        ASSERT_TRUE(!row.old || (WriteBytes(UserClient(), "old client") &&
                                 WriteBytes(UserApp() + "/marker", "old")));
        for (const char* index = row.occupied; *index; ++index)
            ASSERT_TRUE(WriteBytes(backup(*index) + "/marker", "earlier"));
        EXPECT_EQ(MacService().PrepareUserEnv(), row.result);
        EXPECT_EQ(ReadBytes(UserClient()), row.client);
        EXPECT_EQ(QFile::exists(UserApp() + "/marker"), row.old && row.result != 0);
        std::string left;
        for (char index = '0'; index <= '9'; ++index)
            left += QFile::exists(backup(index)) ? std::string(1, index) : "";
        EXPECT_EQ(left, row.left);
    }
}

// Sends nothing and does not wait: each call takes the next errno from errors
// (0 for success); once they run out, the process seems alive.
struct FakeSignalService : MacService {
    std::vector<int> sent;  // -1 for a pid other than the file's
    int pauses = 0;
    std::deque<int> errors;
    int SendSignal(pid_t pid, int signal_number) override
    {
        sent.push_back(pid == 4242 ? signal_number : -1);
        errno = errors.empty() ? 0 : errors.front();
        errors.erase(errors.begin(), errors.begin() + !errors.empty());
        return errno ? -1 : 0;
    }
    void PauseSeconds(unsigned) override { ++pauses; }
};

TEST_F(ServiceTest, StopSequenceSignalsOnlyAUsablePid)
{
    const struct { const char* pid_file; std::deque<int> errors; std::vector<int> sent; int pauses;
    } rows[] = {
        {"pid=0\n", {}, {}, 0},
        {"pid=-4242\n", {}, {}, 0},
        {"pid=abc\n", {}, {}, 0},
        {"pid=99999999999\n", {}, {}, 0},
        {"pid = 4242 # client\n", {ESRCH}, {SIGTERM}, 0},
        {"pid=4242\n", {0, 0, ESRCH}, {SIGTERM, 0, 0}, 1},
        {"pid=4242\n", {EPERM, EPERM}, {SIGTERM, 0, 0, 0, 0, 0, SIGKILL}, 5},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.pid_file);
        ASSERT_TRUE(WriteBytes(Home() + "/.Drovia/ui.pid", row.pid_file));
        const LogCapture log;
        FakeSignalService service;
        service.errors = row.errors;
        service.StopService();
        EXPECT_EQ(service.sent, row.sent);
        EXPECT_EQ(service.pauses, row.pauses);
        const std::string error = "): kill: " + std::string(strerror(EPERM)) + " (1)\n";
        EXPECT_EQ(log.Text().find(error) != std::string::npos, row.pauses == 5);
    }
}

// A real client with SIGTERM blocked: only the real probes, sleeps and SIGKILL end it.
TEST_F(ServiceTest, ClientThatIgnoresTermIsKilledAfterFiveSeconds)
{
    sigset_t term, old;
    sigemptyset(&term);
    sigaddset(&term, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &term, &old);  // the client inherits the mask
    pid_t client = -1;
    char* argv[] = {const_cast<char*>("sleep"), const_cast<char*>("30"), nullptr};
    const int spawned = posix_spawnp(&client, argv[0], nullptr, nullptr, argv, environ);
    pthread_sigmask(SIG_SETMASK, &old, nullptr);
    ASSERT_TRUE(spawned == 0 && client > 0);
    EXPECT_TRUE(WriteBytes(Home() + "/.Drovia/ui.pid", "pid=" + std::to_string(client) + "\n"));
    QElapsedTimer timer;
    timer.start();
    MacService().StopService();
    EXPECT_GE(timer.elapsed(), 4900);
    int status = 0;  // left alive, the client ends by itself after 30 s
    EXPECT_TRUE(waitpid(client, &status, 0) == client && WIFSIGNALED(status) &&
                WTERMSIG(status) == SIGKILL);
}

TEST_F(ServiceTest, LaunchStartsOnlyAnInstalledClient)
{
    EXPECT_EQ(MacService().LaunchPerUserBin(), -1);
    const QString started = Home() + "/client-started";
    ASSERT_TRUE(WriteBytes(UserClient(), "#!/bin/sh\n: > \"" + started.toStdString() + "\"\n"));
    ASSERT_TRUE(QFile::setPermissions(UserClient(), QFile::ReadOwner | QFile::ExeOwner));
    EXPECT_EQ(MacService().LaunchPerUserBin(), 0);
    for (int tries = 0; tries < 100 && !QFile::exists(started); ++tries)
        QThread::msleep(50);
    EXPECT_TRUE(QFile::exists(started));
}

}  // namespace
