#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "log.h"

namespace {

const int SLOTS = 50;
const long MEBIBYTE = 1024 * 1024;
const long STAMP_LENGTH = 16;  // "Nov 16 20:31:15 " in the C locale
const std::string STAMP = "[A-Z][a-z]{2} [0-3][0-9] [0-2][0-9]:[0-5][0-9]:[0-6][0-9] ";

// The logger's state is process-wide: every test leaves it on standard error
// and uses component names of its own, since thresholds outlive Initialize.
class LoggerTest : public ::testing::Test {
protected:
    void TearDown() override
    {
        Logger::Destroy();
        Logger::Initialize(Logger::TYPE_STDERR, "", "", 0);
    }

    std::string path(const QString& name) const { return dir.filePath(name).toStdString(); }
    std::string read(const QString& name) const
    {
        std::ostringstream content;
        content << std::ifstream(path(name), std::ios::binary).rdbuf();
        return content.str();
    }
    long size(const QString& name) const { return QFileInfo(dir.filePath(name)).size(); }
    QStringList files() const { return QDir(dir.path()).entryList(QDir::Files, QDir::Name); }
    void openLog(const QString& name, int slots_count, const std::string& level_file = "")
    {
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, ustring(path(name)), ustring(level_file), slots_count), 0);
    }

    QTemporaryDir dir;
    const std::string big = std::string(MEBIBYTE, 'z');
};

TEST_F(LoggerTest, ThresholdsComeFromTheLevelFile)
{
    // "default_component" in the file must not become the fallback threshold.
    std::ofstream(path("launcher.debug")) << "lvl_verbose=7\nlvl_silenced=abc\ndefault_component=7\n";
    openLog("launcher.log", SLOTS, path("launcher.debug"));
    for (const char* component : {"lvl_verbose", "lvl_silenced", "lvl_unlisted"}) {
        for (int level = Logger::LEVEL_ERROR; level <= Logger::LEVEL_DEBUG; ++level)
            Logger::LogMsg(static_cast<Logger::Level>(level), component, "L%d %s\n", level, component);
    }

    std::string expected;
    for (const char* message : {"3 lvl_verbose", "4 lvl_verbose", "5 lvl_verbose", "6 lvl_verbose", "7 lvl_verbose",
                                "3 lvl_unlisted", "4 lvl_unlisted"})
        expected += STAMP + "L" + message + "\n";
    const std::string written = read("launcher.log");
    EXPECT_TRUE(std::regex_match(written, std::regex(expected))) << written;
}

TEST_F(LoggerTest, FailedOpenKeepsTheStreamAndDestroyEndsFileMode)
{
    openLog("first.log", SLOTS);
    EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, ustring(path("missing/second.log")), "", SLOTS), -1);
    EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, "", "", SLOTS), -1);
    Logger::LogMsg(Logger::LEVEL_ERROR, "open_test", "still here\n");
    Logger::Destroy();
    testing::internal::CaptureStdout();
    Logger::LogMsg(Logger::LEVEL_ERROR, "open_test", "on stdout\n");
    EXPECT_TRUE(std::regex_match(testing::internal::GetCapturedStdout(), std::regex(STAMP + "on stdout\n")));
    EXPECT_TRUE(std::regex_match(read("first.log"), std::regex(STAMP + "still here\n")));
}

TEST_F(LoggerTest, RotatesOnlyOnceTheCountPassesOneMebibyte)
{
    // Data from an earlier run does not count: counting starts at 0 on open.
    std::ofstream(path("earlier.log")) << std::string(2 * MEBIBYTE, 'o');
    openLog("earlier.log", SLOTS);
    Logger::LogMsg(Logger::LEVEL_ERROR, "size_test", "small\n");
    EXPECT_EQ(files(), QStringList{"earlier.log"});

    // Exactly 1 MiB stays; the message that passes it ends the old file.
    openLog("live.log", SLOTS);
    Logger::LogMsg(Logger::LEVEL_ERROR, "size_test", "%s\n", big.substr(STAMP_LENGTH + 1).c_str());
    EXPECT_EQ(size("live.log"), MEBIBYTE);
    EXPECT_FALSE(QFile::exists(dir.filePath("live.log_0")));
    Logger::LogMsg(Logger::LEVEL_ERROR, "size_test", "x\n");
    EXPECT_EQ(size("live.log_0"), MEBIBYTE + STAMP_LENGTH + 2);
    Logger::LogMsg(Logger::LEVEL_ERROR, "size_test", "y\n");
    EXPECT_EQ(size("live.log"), STAMP_LENGTH + 2);
}

TEST_F(LoggerTest, KeepsOneOldFileFewerThanTheSlotCount)
{
    openLog("launcher.log", SLOTS);
    for (int i = 0; i < 60; ++i)
        Logger::LogMsg(Logger::LEVEL_ERROR, "slots_test", "message %d %s\n", i, big.c_str());
    QStringList expected{"launcher.log"};
    for (int i = 0; i < SLOTS - 1; ++i)
        expected << QString("launcher.log_%1").arg(i);
    expected.sort();
    EXPECT_EQ(files(), expected);
    // Newest first: slot 0 holds message 59, the last slot message 11.
    EXPECT_EQ(read("launcher.log_0").substr(STAMP_LENGTH, 11), "message 59 ");
    EXPECT_EQ(read("launcher.log_48").substr(STAMP_LENGTH, 11), "message 11 ");
}

TEST_F(LoggerTest, FailedRotationLeavesTheLoggerSilentUntilReinitialised)
{
    // A non-empty folder in the only slot can neither be removed nor
    // replaced by the live file.
    ASSERT_TRUE(QDir(dir.path()).mkpath("stuck.log_0/inner"));
    openLog("stuck.log", 1);
    Logger::LogMsg(Logger::LEVEL_ERROR, "stuck_test", "%s\n", big.c_str());
    const long stuck_size = size("stuck.log");
    EXPECT_GT(stuck_size, MEBIBYTE);
    Logger::LogMsg(Logger::LEVEL_ERROR, "stuck_test", "%s\n", big.c_str());
    EXPECT_EQ(size("stuck.log"), stuck_size);

    openLog("fresh.log", 1);
    Logger::LogMsg(Logger::LEVEL_ERROR, "stuck_test", "%s\n", big.c_str());
    Logger::LogMsg(Logger::LEVEL_ERROR, "stuck_test", "%s\n", big.c_str());
    EXPECT_EQ(read("fresh.log_0").size(), big.size() + STAMP_LENGTH + 1);
}

TEST_F(LoggerTest, ConcurrentMessagesNeverShareALineAcrossRotations)
{
    // About 4 MiB in all, so rotations happen while other threads wait.
    const int threads = 8;
    const int messages = 500;
    openLog("threads.log", SLOTS);
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t) {
        workers.emplace_back([t] {
            const std::string text(1000, static_cast<char>('a' + t));
            for (int m = 0; m < messages; ++m)
                Logger::LogMsg(Logger::LEVEL_ERROR, "thread_test", "t%d %s\n", t, text.c_str());
        });
    }
    for (std::thread& worker : workers)
        worker.join();

    std::vector<int> per_thread(threads, 0);
    const std::regex shape("^" + STAMP + "t([0-7]) (a+|b+|c+|d+|e+|f+|g+|h+)$");
    for (const QString& name : files()) {
        std::istringstream in(read(name));
        for (std::string line; std::getline(in, line);) {
            std::smatch match;
            ASSERT_TRUE(std::regex_match(line, match, shape)) << line.substr(0, 80);
            const int t = std::stoi(match[1].str());
            ASSERT_EQ(match[2].str(), std::string(1000, static_cast<char>('a' + t)));
            ++per_thread[t];
        }
    }
    EXPECT_EQ(per_thread, std::vector<int>(threads, messages));
    EXPECT_GE(files().size(), 4);
}

}  // namespace
