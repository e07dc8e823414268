// Odd files where the launcher expects version, level and pid files.
#include <signal.h>
#include <unistd.h>

#include <QDir>
#include <QFile>

#include <algorithm>
#include <functional>
#include <random>
#include <vector>

#include "service-fixture.h"
#include "test-archive.h"

namespace {

const int kBinaryFiles = 40;
const unsigned kBinarySeed = 99;

// Records the signals the stop sequence would send, and sends none.
class SignalRecorder : public MacService {
public:
    std::vector<int> sent;

protected:
    int SendSignal(pid_t, int signal_number) override
    {
        sent.push_back(signal_number);
        errno = ESRCH;
        return -1;
    }
    void PauseSeconds(unsigned) override {}
};

std::string RandomBytes(std::mt19937& random, size_t size)
{
    std::string bytes(size, '\0');
    for (char& c : bytes)
        c = static_cast<char>(random());
    return bytes;
}

using EdgeInput = ServiceTest;

// A file without a single "=" can hold no key, so its build reads as 0.
TEST_F(EdgeInput, BinaryVersionFilesReadAsBuildZero)
{
    UseBundle();
    std::mt19937 random(kBinarySeed);
    for (int index = 0; index < kBinaryFiles; ++index) {
        std::string bytes = RandomBytes(random, 1 + random() % 4096);
        std::replace(bytes.begin(), bytes.end(), '=', '\0');
        if (index % 2 == 0)
            bytes = "[Version]\n" + bytes;
        WriteBundleVersion(bytes);
        ASSERT_TRUE(WriteBytes(UserApp() + "/Contents/Resources/INFO", bytes));
        ASSERT_TRUE(WriteBytes(UserClient(), "client"));

        ExposedService service;
        service.PreUpgrade();
        EXPECT_FALSE(service.IsNeedUpgrade()) << "file " << index;
        QFile::remove(UserClient());
        EXPECT_TRUE(service.IsNeedUpgrade()) << "file " << index;
    }
}

TEST_F(EdgeInput, BinaryBuildValuesReadAsTheirLeadingNumber)
{
    UseBundle();
    ASSERT_TRUE(WriteBytes(UserClient(), "client"));
    ASSERT_TRUE(WriteBytes(UserApp() + "/Contents/Resources/INFO",
                           VersionFile(std::string("build_version=7\x01\xff\xfe", 18))));
    const std::pair<std::string, bool> cases[] = {
        {std::string("build_version=\x80\x81\x82", 17), false},
        {std::string("build_version=8\x00\x00\xff", 18), true},
        {"build_version=99999999999999999999999", true},
        {"build_version=-99999999999999999999999", false},
    };
    for (const auto& [line, upgrade] : cases) {
        WriteBundleVersion(VersionFile(line));
        MacService service;
        service.PreUpgrade();
        EXPECT_EQ(service.IsNeedUpgrade(), upgrade) << line;
    }
}

// A pid file that cannot be read as a file is a failed read (the note line);
// a link is followed like the file system follows it. Nothing is signalled.
TEST_F(EdgeInput, PidFileThatIsNoPlainFileSignalsNothing)
{
    const QString pid_file = Home() + "/.Drovia/ui.pid";
    const QString folder = Home() + "/a folder";
    ASSERT_TRUE(QDir().mkpath(folder));
    ASSERT_TRUE(WriteBytes(Home() + "/pid-zero", "pid=0\n"));
    const struct {
        const char* name;
        std::function<bool()> make;
        const char* expected_line;
    } cases[] = {
        {"folder", [&] { return QDir().mkpath(pid_file); }, "Failed to read pid file"},
        {"link to a folder", [&] { return QFile::link(folder, pid_file); }, "Failed to read pid file"},
        {"dangling link", [&] { return QFile::link(Home() + "/nowhere", pid_file); }, "does not exist"},
        {"link to itself", [&] { return QFile::link(pid_file, pid_file); }, "does not exist"},
        {"link to pid=0", [&] { return QFile::link(Home() + "/pid-zero", pid_file); }, nullptr},
    };
    for (const auto& item : cases) {
        QDir(pid_file).removeRecursively();
        QFile::remove(pid_file);
        ASSERT_TRUE(QDir().mkpath(Home() + "/.Drovia"));
        ASSERT_TRUE(item.make()) << item.name;
        const LogCapture captured;
        SignalRecorder service;
        service.StopService();
        EXPECT_TRUE(service.sent.empty()) << item.name;
        if (item.expected_line) {
            EXPECT_NE(captured.Text().find(item.expected_line), std::string::npos) << item.name;
        }
    }
}

}  // namespace
