#include <archive.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <cerrno>
#include <cstring>
#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "service-fixture.h"

extern char** environ;

namespace {

const std::vector<TestEntry> kPackage = {
    {"Contents", "", true},
    {"Contents/MacOS", "", true},
    {"Contents/MacOS/cloud-ui", "new client"},
    {"Contents/Resources/INFO", "[Version]\nbuild_version=200\n"},
};

size_t CountOf(const std::string& text, const std::string& part)
{
    size_t count = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

TEST_F(ServiceTest, UpgradeDecisionFollowsBuildNumbersAndClientPresence)
{
    UseBundle();
    const struct {
        const char* source;  // per-user version lines; null: no per-user version file
        const char* target;  // the bundle's; null: no bundle version file
        bool client;
        bool upgrade;
    } rows[] = {
        {"build_version=120", "build_version=121", true, true},
        {"build_version=121", "build_version=121", true, false},
        {"build_version=121", "build_version=121", false, true},
        {"build_version=122", "build_version=121", true, false},
        {"build_version=122", "build_version=121", false, true},
        {nullptr, "build_version=121", false, true},
        {"build_version=12a", "build_version=12", true, false},
        {"build_version=\" 7\"", "build_version=7", true, false},
        {"build_version=abc", "build_version=1", true, true},
        {"build_version=5", nullptr, true, false},
        {"major_version=3\nbuild_version=9", "major_version=4\nbuild_version=9", true, false},
        {"build_version=9", "[Other]\nbuild_version=99", true, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.source ? row.source : "-") + " -> " +
                     (row.target ? row.target : "-") + (row.client ? ", client" : ""));
        QDir(Home() + "/.Drovia").removeRecursively();
        QFile::remove(BundleResources() + "/INFO");
        if (row.target)
            WriteBundleVersion(VersionFile(row.target));
        if (row.source) {
            ASSERT_TRUE(WriteBytes(UserApp() + "/Contents/Resources/INFO",
                                   VersionFile(row.source)));
        }
        if (row.client) {
            ASSERT_TRUE(WriteBytes(UserClient(), "client"));
        }
        MacService service;
        service.PreUpgrade();
        EXPECT_EQ(service.IsNeedUpgrade(), row.upgrade);
    }
    const std::string text = log.Text();
    EXPECT_NE(text.find("[INFO] cloud-service("), std::string::npos);
    EXPECT_NE(text.find("): source does not exist\n"), std::string::npos);
    EXPECT_NE(text.find("): target_version = (4, , 9, )\n"), std::string::npos);
    EXPECT_NE(text.find("): source version = 12, target version = 12\n"), std::string::npos);
}

TEST_F(ServiceTest, InstallationBacksUpCleansUpAndRollsBack)
{
    UseBundle();
    WriteBundleVersion(VersionFile("build_version=200"));
    const std::string good = MakeArchive(ARCHIVE_FORMAT_ZIP, ARCHIVE_FILTER_NONE, kPackage);
    const std::string damaged = MakeDamagedTar(kPackage, 3);
    const struct {
        bool old;              // an old per-user bundle exists
        const char* occupied;  // backup indices that earlier runs left
        const std::string* package;
        int result;
        const char* client;
        const char* backups_after;
        size_t refused;  // backup names refused, the give-up line included
        const char* logged;
    } rows[] = {
        {false, "0", &good, 0, "new client", "", 0, "): user installation is ready, removing"},
        {true, "02", &good, 0, "new client", "2", 1, "): user installation is ready, removing"},
        {true, "0123456789", &good, -1, "old client", "0123456789", 11, "9' at max retries"},
        {true, "", &damaged, -1, "old client", "", 0, "): Failed to extract package, rollback"},
        {false, "", &damaged, -1, "new client", "", 0, "package, and no old installation to"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << "old " << row.old << ", occupied " << row.occupied);
        QDir(Home() + "/.Drovia").removeRecursively();
        WritePackage(*row.package);
        if (row.old) {
            ASSERT_TRUE(WriteBytes(UserClient(), "old client"));
            ASSERT_TRUE(WriteBytes(UserApp() + "/marker.txt", "old"));
        }
        for (const char* index = row.occupied; *index; ++index) {
            const QString suffix = *index == '0' ? QString() : QString(QChar(*index));
            ASSERT_TRUE(WriteBytes(UserApp() + "_tmp" + suffix + "/marker.txt", "earlier"));
        }
        const LogCapture row_log;

        EXPECT_EQ(MacService().PrepareUserEnv(), row.result);
        EXPECT_EQ(ReadBytes(UserClient()), row.client);
        EXPECT_EQ(QFile::exists(UserApp() + "/marker.txt"), row.old && row.result != 0);
        QString backups_after;
        for (char index = '0'; index <= '9'; ++index) {
            if (QFile::exists(UserApp() + "_tmp" + (index == '0' ? QString() : QString(index))))
                backups_after += index;
        }
        EXPECT_EQ(backups_after.toStdString(), row.backups_after);
        const std::string text = row_log.Text();
        const std::string refused = "): failed to backup app from '" + UserApp().toStdString();
        EXPECT_EQ(CountOf(text, refused + "' -> '"), row.refused);
        EXPECT_NE(text.find(row.logged), std::string::npos);
        EXPECT_EQ(text.find("extract package: '") != std::string::npos, row.refused < 11);
    }
}

TEST_F(ServiceTest, RemoveAgedFoldersDeletesTheOldLayoutOnly)
{
    const QString aged = Home() + "/.Drovia/app";
    ASSERT_TRUE(WriteBytes(aged + "/nested/file", "old layout"));
    ASSERT_TRUE(WriteBytes(UserClient(), "client"));
    MacService().RemoveAgedFolders();
    MacService().RemoveAgedFolders();
    EXPECT_FALSE(QFile::exists(aged));
    EXPECT_TRUE(QFile::exists(UserClient()));
    EXPECT_EQ(CountOf(log.Text(), "): removing aged app folder " + aged.toStdString() + "\n"), 2u);
}

// Sends nothing and does not wait: each call takes the next errno from
// errors (0 for success); once they run out, the process seems alive.
class FakeSignalService : public MacService {
public:
    std::vector<std::pair<pid_t, int>> sent;
    int pauses = 0;
    std::deque<int> errors;

protected:
    int SendSignal(pid_t pid, int signal_number) override
    {
        sent.emplace_back(pid, signal_number);
        errno = errors.empty() ? 0 : errors.front();
        if (!errors.empty())
            errors.pop_front();
        return errno ? -1 : 0;
    }
    void PauseSeconds(unsigned) override { ++pauses; }
};

TEST_F(ServiceTest, StopSequenceSignalsOnlyAUsablePid)
{
    const QString pid_file = Home() + "/.Drovia/ui.pid";
    const std::string quoted = "'" + pid_file.toStdString() + "'";
    const struct {
        const char* pid_file;  // null: no pid file
        std::deque<int> errors;
        std::vector<int> sent;
        int pauses;
        std::string logged;  // empty: nothing logged
    } rows[] = {
        {nullptr, {}, {}, 0, "): pid file " + quoted + " does not exist, no need to terminate\n"},
        {"4242\n", {}, {}, 0, "): Failed to read pid file " + quoted + ", not exist ?\n"},
        {"client=cloud\n", {}, {}, 0, ""},
        {"pid=0\n", {}, {}, 0, ""},
        {"pid=-4242\n", {}, {}, 0, ""},
        {"pid=abc\n", {}, {}, 0, ""},
        {"pid=99999999999\n", {}, {}, 0, ""},
        {"pid = 4242 # client\n", {ESRCH}, {SIGTERM}, 0, ""},
        {"pid=4242\n", {0, 0, ESRCH}, {SIGTERM, 0, 0}, 1, ""},
        {"pid=4242\n", {EPERM, EPERM}, {SIGTERM, 0, 0, 0, 0, 0, SIGKILL}, 5,
         "): kill: " + std::string(strerror(EPERM)) + " (1)\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.pid_file ? row.pid_file : "no pid file");
        QFile::remove(pid_file);
        if (row.pid_file) {
            ASSERT_TRUE(WriteBytes(pid_file, row.pid_file));
        }
        const LogCapture row_log;
        FakeSignalService service;
        service.errors = row.errors;
        service.StopService();
        std::vector<std::pair<pid_t, int>> expected;
        for (int signal_number : row.sent)
            expected.emplace_back(4242, signal_number);
        EXPECT_EQ(service.sent, expected);
        EXPECT_EQ(service.pauses, row.pauses);
        EXPECT_EQ(row_log.Text().find(row.logged.empty() ? "mac-service" : row.logged) !=
                      std::string::npos,
                  !row.logged.empty());
    }
}

// A real client with SIGTERM blocked: only the real probes, sleeps and SIGKILL end it.
TEST_F(ServiceTest, ClientThatIgnoresTermIsKilledAfterFiveSeconds)
{
    posix_spawnattr_t attributes;
    sigset_t term;
    sigemptyset(&term);
    sigaddset(&term, SIGTERM);
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setsigmask(&attributes, &term);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    pid_t client = -1;
    char* argv[] = {const_cast<char*>("sleep"), const_cast<char*>("30"), nullptr};
    const int spawned = posix_spawnp(&client, argv[0], nullptr, &attributes, argv, environ);
    posix_spawnattr_destroy(&attributes);
    ASSERT_EQ(spawned, 0);
    ASSERT_GT(client, 0);
    EXPECT_TRUE(WriteBytes(Home() + "/.Drovia/ui.pid", "pid=" + std::to_string(client) + "\n"));

    QElapsedTimer timer;
    timer.start();
    MacService().StopService();
    EXPECT_GE(timer.elapsed(), 4900);
    // Unreaped, the child keeps its pid, so the fallback kill cannot reach another process.
    int status = 0;
    pid_t reaped = 0;
    for (int tries = 0; tries < 100 && reaped == 0; ++tries, QThread::msleep(20))
        reaped = waitpid(client, &status, WNOHANG);
    if (reaped == 0) {
        kill(client, SIGKILL);
        waitpid(client, &status, 0);
    }
    EXPECT_EQ(reaped, client);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
}

// Counts the stops; installing succeeds only after one, so the result shows the order.
class StepService : public MacService {
public:
    int stops = 0;
    void StopService() override { ++stops; }
    int PrepareUserEnv() override { return stops ? 0 : -1; }
};

TEST_F(ServiceTest, UpgradeStopsOnlyAnInstalledClientAndLaunchesIt)
{
    StepService without_client;
    EXPECT_EQ(without_client.HandlePackageUpgrade(), -1);
    EXPECT_EQ(without_client.stops, 0);
    EXPECT_EQ(without_client.LaunchPerUserBin(), -1);
    without_client.PostUpgrade();
    EXPECT_NE(log.Text().find("): Failed to launch Drovia UI\n"), std::string::npos);

    const QString started = Home() + "/client-started";
    ASSERT_TRUE(WriteBytes(UserClient(), "#!/bin/sh\n: > \"" + started.toStdString() + "\"\n"));
    ASSERT_TRUE(QFile::setPermissions(UserClient(), QFile::ReadOwner | QFile::ExeOwner));
    StepService with_client;
    EXPECT_EQ(with_client.HandlePackageUpgrade(), 0);
    EXPECT_EQ(with_client.stops, 1);
    EXPECT_EQ(with_client.LaunchPerUserBin(), 0);
    for (int tries = 0; tries < 100 && !QFile::exists(started); ++tries)
        QThread::msleep(50);
    EXPECT_TRUE(QFile::exists(started));
}

}  // namespace
