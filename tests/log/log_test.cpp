#include <gtest/gtest.h>
#include <QDir>
#include <QTemporaryDir>
#include <fstream>
#include <string>
#include <thread>
#include <vector>
#include "log.h"

const long BIG_LINE = 1024 * 1024 + 16 + 11;  // time stamp, "message N ", newline: passes the rotation size alone

// Thresholds outlive Initialize, so each test has its own component names.
class LoggerTest : public ::testing::Test {
protected:
    void TearDown() override { Logger::Destroy(), Logger::Initialize(Logger::TYPE_STDERR, "", "", 0); }
    std::vector<std::string> messages(const QString& name) const  // time stamps cut off
    {
        std::vector<std::string> result;
        std::ifstream in(dir.filePath(name).toStdString(), std::ios::binary);
        for (std::string line; std::getline(in, line);)
            result.push_back(line.substr(16));
        return result;
    }
    int open(const QString& name, int count, const QString& levels = "")
    { return Logger::Initialize(Logger::TYPE_FILE, ustring(dir.filePath(name).toStdString()), ustring(levels.toStdString()), count); }
    void logBig(int i = 0) { Logger::LogMsg(Logger::LEVEL_ERROR, "big", "message %d %s\n", i, std::string(1 << 20, 'z').c_str()); }
    QTemporaryDir dir;
};

TEST_F(LoggerTest, ThresholdsComeFromTheLevelFile)
{
    // "default_component" in the file must not become the fallback threshold.
    std::ofstream(dir.filePath("launcher.debug").toStdString()) << "lvl_verbose=7\nlvl_silenced=abc\ndefault_component=7\n";
    ASSERT_EQ(open("launcher.log", 50, dir.filePath("launcher.debug")), 0);
    for (const char* component : {"lvl_verbose", "lvl_silenced", "lvl_unlisted"})
        for (int level = Logger::LEVEL_ERROR; level <= Logger::LEVEL_DEBUG; ++level)
            Logger::LogMsg(static_cast<Logger::Level>(level), component, "L%d %s\n", level, component);
    EXPECT_EQ(messages("launcher.log"), (std::vector<std::string>{"L3 lvl_verbose", "L4 lvl_verbose", "L5 lvl_verbose",
              "L6 lvl_verbose", "L7 lvl_verbose", "L3 lvl_unlisted", "L4 lvl_unlisted"}));
}

TEST_F(LoggerTest, KeepsOneOldFileFewerThanTheSlotCountNewestFirst)
{
    ASSERT_EQ(open("launcher.log", 50), 0);
    for (int i = 0; i < 52; ++i) logBig(i);
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 50);
    EXPECT_FALSE(QFile::exists(dir.filePath("launcher.log_49")));
    EXPECT_EQ(messages("launcher.log_0").at(0).substr(0, 11), "message 51 ");
    EXPECT_EQ(messages("launcher.log_48").at(0).substr(0, 11), "message 3 z");
}

TEST_F(LoggerTest, FailedRotationLeavesTheLoggerSilent)
{
    // A non-empty folder in the only slot can neither be removed nor replaced.
    ASSERT_TRUE(QDir(dir.path()).mkpath("stuck.log_0/inner"));
    ASSERT_EQ(open("stuck.log", 1), 0);
    logBig(), logBig(), logBig();
    EXPECT_EQ(QFileInfo(dir.filePath("stuck.log")).size(), BIG_LINE);
}

TEST_F(LoggerTest, ConcurrentMessagesNeverShareALineAcrossRotations)
{
    const int threads = 8, count = 4000, width = 100;  // about 3.8 MiB: rotations happen under contention
    ASSERT_EQ(open("threads.log", 50), 0);
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t)
        workers.emplace_back([t] { for (int m = 0; m < count; ++m)
            Logger::LogMsg(Logger::LEVEL_ERROR, "thread_test", "%d %s\n", t, std::string(width, 'a' + t).c_str()); });
    for (std::thread& worker : workers) worker.join();
    const QStringList files = QDir(dir.path()).entryList(QDir::Files);
    for (const QString& name : files)
        for (const std::string& line : messages(name))
            ASSERT_EQ(line, line.substr(0, 2) + std::string(width, 'a' + line[0] - '0')) << line.substr(0, 40);
    EXPECT_GE(files.size(), 3);
}
