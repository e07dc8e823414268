#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <cerrno>
#include <cstring>
#include <deque>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "service-fixture.h"
#include "test-archive.h"

extern char** environ;

namespace {

// Records the stop sequence and passes it on to the real kill and sleep.
class RecordingService : public MacService {
public:
    std::vector<int> sent;
    std::vector<pid_t> pids;
    int pauses = 0;

protected:
    int SendSignal(pid_t pid, int signal_number) override
    {
        sent.push_back(signal_number);
        pids.push_back(pid);
        return Deliver(pid, signal_number);
    }
    void PauseSeconds(unsigned seconds) override
    {
        ++pauses;
        Wait(seconds);
    }
    virtual int Deliver(pid_t pid, int signal_number)
    {
        return MacService::SendSignal(pid, signal_number);
    }
    virtual void Wait(unsigned seconds) { MacService::PauseSeconds(seconds); }
};

// Sends nothing and does not wait: each call takes the next errno from
// errors (0 for success); once they run out, the process seems alive.
class FakeSignalService : public RecordingService {
public:
    std::deque<int> errors;

protected:
    int Deliver(pid_t, int) override
    {
        const int error = errors.empty() ? 0 : errors.front();
        if (!errors.empty())
            errors.pop_front();
        errno = error;
        return error ? -1 : 0;
    }
    void Wait(unsigned) override {}
};

// Counts the calls and answers from a script instead of installing.
class StepService : public MacService {
public:
    int stops = 0;
    int prepare_result = -1;

    void StopService() override { ++stops; }
    int PrepareUserEnv() override { return prepare_result; }
};

// A child of the test, reaped as soon as it ends so that probing it reports
// ESRCH. The reaper takes the lock only between the exit and the reaping, so
// the destructor never signals a pid that may already belong to someone else.
class ChildProcess {
public:
    explicit ChildProcess(std::vector<std::string> arguments)
    {
        std::vector<char*> argv;
        for (std::string& argument : arguments)
            argv.push_back(argument.data());
        argv.push_back(nullptr);
        posix_spawnattr_t attributes;
        posix_spawnattr_init(&attributes);
        sigset_t none;
        sigset_t term;
        sigemptyset(&none);
        sigemptyset(&term);
        sigaddset(&term, SIGTERM);
        posix_spawnattr_setsigmask(&attributes, &none);
        posix_spawnattr_setsigdefault(&attributes, &term);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
        if (posix_spawnp(&child, argv[0], nullptr, &attributes, argv.data(), environ) != 0)
            child = -1;
        posix_spawnattr_destroy(&attributes);
        if (child > 0)
            reaper = std::thread([this] { Reap(); });
    }

    ~ChildProcess()
    {
        {
            std::lock_guard<std::mutex> guard(lock);
            if (child > 0 && !reaped)
                kill(child, SIGKILL);
        }
        if (reaper.joinable())
            reaper.join();
    }

    pid_t Pid() const { return child; }
    bool Reaped()
    {
        std::lock_guard<std::mutex> guard(lock);
        return reaped;
    }

private:
    void Reap()
    {
        siginfo_t info;
        while (waitid(P_PID, child, &info, WEXITED | WNOWAIT) != 0 && errno == EINTR) {
        }
        std::lock_guard<std::mutex> guard(lock);
        waitpid(child, nullptr, 0);
        reaped = true;
    }

    pid_t child = -1;
    std::mutex lock;
    bool reaped = false;
    std::thread reaper;
};

bool WaitForFile(const QString& path)
{
    for (int tries = 0; tries < 100 && !QFile::exists(path); ++tries)
        QThread::msleep(50);
    return QFile::exists(path);
}

class StopLaunchTest : public ServiceTest {
protected:
    QString PidFile() const { return Home() + "/.Drovia/ui.pid"; }
    void WritePid(pid_t pid) { ASSERT_TRUE(WriteBytes(PidFile(), "pid=" + std::to_string(pid) + "\n")); }

    // Runs the stop sequence on a pid file of the given text (none when null).
    FakeSignalService StopWith(const char* pid_file, std::deque<int> errors)
    {
        QFile::remove(PidFile());
        if (pid_file) {
            EXPECT_TRUE(WriteBytes(PidFile(), pid_file));
        }
        FakeSignalService service;
        service.errors = std::move(errors);
        service.StopService();
        return service;
    }
};

TEST_F(StopLaunchTest, NothingIsSignalledWithoutAUsablePid)
{
    EXPECT_TRUE(StopWith(nullptr, {}).sent.empty());
    EXPECT_NE(log.Text().find("[DEBUG] mac/mac-service("), std::string::npos);
    EXPECT_NE(log.Text().find("): pid file '" + PidFile().toStdString() +
                              "' does not exist, no need to terminate\n"),
              std::string::npos);

    EXPECT_TRUE(StopWith("4242\n", {}).sent.empty());
    EXPECT_NE(log.Text().find("[NOTE] mac/mac-service("), std::string::npos);
    EXPECT_NE(log.Text().find("): Failed to read pid file '" + PidFile().toStdString() +
                              "', not exist ?\n"),
              std::string::npos);

    const LogCapture quiet;
    for (const char* text : {"client=cloud\n", "pid=0\n", "pid=-1\n", "pid=-4242\n", "pid=abc\n",
                             "pid=\"\"\n", "pid=99999999999\n"}) {
        SCOPED_TRACE(text);
        EXPECT_TRUE(StopWith(text, {}).sent.empty());
    }
    EXPECT_EQ(quiet.Text().find("mac-service"), std::string::npos);

    QFile::remove(PidFile());
    ASSERT_TRUE(QDir().mkpath(PidFile()));  // exists, but holds no pid
    FakeSignalService unreadable;
    unreadable.StopService();
    EXPECT_TRUE(unreadable.sent.empty());
}

TEST_F(StopLaunchTest, StopSequenceProbesFiveTimesBeforeKilling)
{
    const FakeSignalService gone = StopWith("pid = 4242 # client\n", {ESRCH});
    EXPECT_EQ(gone.sent, (std::vector<int>{SIGTERM}));
    EXPECT_EQ(gone.pids, (std::vector<pid_t>{4242}));
    EXPECT_EQ(gone.pauses, 0);
    EXPECT_EQ(log.Text().find("[ERROR]"), std::string::npos);

    const FakeSignalService quits = StopWith("pid=4242\n", {0, 0, ESRCH});
    EXPECT_EQ(quits.sent, (std::vector<int>{SIGTERM, 0, 0}));
    EXPECT_EQ(quits.pauses, 1);

    const FakeSignalService refused = StopWith("pid=4242\n", {EPERM, EPERM, EPERM});
    EXPECT_EQ(refused.sent, (std::vector<int>{SIGTERM, 0, 0, 0, 0, 0, SIGKILL}));
    EXPECT_EQ(refused.pauses, 5);
    EXPECT_EQ(refused.pids, std::vector<pid_t>(7, 4242));
    EXPECT_NE(log.Text().find("[ERROR] mac/mac-service("), std::string::npos);
    EXPECT_NE(log.Text().find("): kill: " + std::string(strerror(EPERM)) + " (1)\n"),
              std::string::npos);
}

TEST_F(StopLaunchTest, UpgradeStopsOnlyAnInstalledClient)
{
    StepService without_client;
    EXPECT_EQ(without_client.HandlePackageUpgrade(), -1);
    EXPECT_EQ(without_client.stops, 0);

    ASSERT_TRUE(WriteBytes(UserClient(), "client"));
    StepService with_client;
    with_client.prepare_result = 0;
    EXPECT_EQ(with_client.HandlePackageUpgrade(), 0);
    EXPECT_EQ(with_client.stops, 1);
    EXPECT_NE(log.Text().find("): local appdata exist\n"), std::string::npos);
}

TEST_F(StopLaunchTest, ClientThatQuitsOnTermIsNotKilled)
{
    ChildProcess client({"sleep", "30"});
    ASSERT_GT(client.Pid(), 0);
    WritePid(client.Pid());

    RecordingService service;
    service.StopService();
    EXPECT_EQ(service.sent.front(), SIGTERM);
    EXPECT_LE(service.sent.size(), 4u);  // SIGTERM and at most three probes
    EXPECT_NE(service.sent.back(), SIGKILL);
    EXPECT_TRUE(client.Reaped());
}

TEST_F(StopLaunchTest, ClientThatIgnoresTermIsKilledAfterFiveSeconds)
{
    const QString ready = Home() + "/ready";
    ChildProcess client({"sh", "-c", "trap '' TERM; : > \"$0\"; exec sleep 30",
                         ready.toStdString()});
    ASSERT_GT(client.Pid(), 0);
    ASSERT_TRUE(WaitForFile(ready));
    WritePid(client.Pid());

    QElapsedTimer timer;
    timer.start();
    RecordingService service;
    service.StopService();
    EXPECT_GE(timer.elapsed(), 4900);
    EXPECT_EQ(service.sent, (std::vector<int>{SIGTERM, 0, 0, 0, 0, 0, SIGKILL}));
    EXPECT_EQ(service.pauses, 5);
    for (int tries = 0; tries < 100 && !client.Reaped(); ++tries)
        QThread::msleep(20);
    EXPECT_TRUE(client.Reaped());
}

TEST_F(StopLaunchTest, LaunchStartsThePerUserClient)
{
    MacService service;
    EXPECT_EQ(service.LaunchPerUserBin(), -1);
    service.PostUpgrade();
    EXPECT_NE(log.Text().find("): Failed to launch Drovia UI\n"), std::string::npos);

    const QString started = Home() + "/client-started";
    ASSERT_TRUE(WriteBytes(UserClient(), "#!/bin/sh\n: > \"" + started.toStdString() + "\"\n"));
    ASSERT_TRUE(QFile::setPermissions(UserClient(), QFile::ReadOwner | QFile::ExeOwner));
    EXPECT_EQ(service.LaunchPerUserBin(), 0);
    EXPECT_TRUE(WaitForFile(started));
}

}  // namespace
