#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "log.h"

namespace {

const int kStampLength = 16;                          // "Nov 16 20:31:15 "
const long kBigLine = (1 << 20) + kStampLength + 11;  // stamp, "message N ", 1 MiB and newline

// Thresholds outlive Initialize, so each test has its own component names.
class LoggerTest : public ::testing::Test {
protected:
    void TearDown() override
    {
        Logger::Destroy();
        Logger::Initialize(Logger::TYPE_STDERR, "", "", 0);
    }
    int Open(const QString& name, int slot_count, const QString& level_file = "")
    {
        return Logger::Initialize(Logger::TYPE_FILE, qPrintable(dir.filePath(name)), qPrintable(level_file),
                                  slot_count);
    }
    std::vector<std::string> Messages(const QString& name) const  // without their stamps
    {
        std::vector<std::string> messages;
        std::ifstream in(dir.filePath(name).toStdString(), std::ios::binary);
        for (std::string line; std::getline(in, line);)
            messages.push_back(line.substr(kStampLength));
        return messages;
    }
    void LogBig(int number)
    {
        Logger::LogMsg(Logger::LEVEL_ERROR, "big", "message %d %s\n", number, big.c_str());
    }

    QTemporaryDir dir;
    const std::string big = std::string(1 << 20, 'z');
};

TEST_F(LoggerTest, ThresholdsComeFromTheLevelFile)
{
    // "default_component" in the file must not become the fallback threshold.
    std::ofstream(dir.filePath("levels").toStdString())
        << "lvl_verbose=7\nlvl_silenced=abc\ndefault_component=7\n";
    ASSERT_EQ(Open("launcher.log", 50, dir.filePath("levels")), 0);
    for (const char* component : {"lvl_verbose", "lvl_silenced", "lvl_unlisted"}) {
        for (int level = Logger::LEVEL_ERROR; level <= Logger::LEVEL_DEBUG; ++level)
            Logger::LogMsg(static_cast<Logger::Level>(level), component, "L%d %s\n", level, component);
    }
    EXPECT_EQ(
        Messages("launcher.log"),
        (std::vector<std::string>{"L3 lvl_verbose", "L4 lvl_verbose", "L5 lvl_verbose", "L6 lvl_verbose",
                                  "L7 lvl_verbose", "L3 lvl_unlisted", "L4 lvl_unlisted"}));
}

TEST_F(LoggerTest, RotatesPastOneMebibyteKeepingOneOldFileFewerThanItsSlotsNewestFirst)
{
    ASSERT_EQ(Open("edge.log", 2), 0);
    Logger::LogMsg(Logger::LEVEL_ERROR, "big", "%s\n", big.substr(kStampLength + 1).c_str());  // 1 MiB in all
    EXPECT_FALSE(QFile::exists(dir.filePath("edge.log_0"))) << "rotated at exactly 1 MiB";
    for (int small = 0; small < 2; ++small)
        Logger::LogMsg(Logger::LEVEL_ERROR, "big", "\n");
    EXPECT_EQ(Messages("edge.log_0").size(), 2u) << "not rotated past 1 MiB, or rotated again";

    ASSERT_EQ(Open("launcher.log", 50), 0);
    for (int number = 0; number < 52; ++number)
        LogBig(number);
    EXPECT_EQ(QDir(dir.path()).entryList({"launcher.log*"}, QDir::Files).size(), 50);
    EXPECT_FALSE(QFile::exists(dir.filePath("launcher.log_49")));
    EXPECT_EQ(Messages("launcher.log_0").at(0).substr(0, 11), "message 51 ");
    EXPECT_EQ(Messages("launcher.log_48").at(0).substr(0, 11), "message 3 z");
}

// A non-empty folder in the only slot can neither be removed nor replaced.
TEST_F(LoggerTest, FailedRotationLeavesTheLoggerSilent)
{
    ASSERT_TRUE(QDir(dir.path()).mkpath("stuck.log_0/inner"));
    ASSERT_EQ(Open("stuck.log", 1), 0);
    for (int number = 0; number < 3; ++number)
        LogBig(number);
    EXPECT_EQ(QFileInfo(dir.filePath("stuck.log")).size(), kBigLine);
}

TEST_F(LoggerTest, ConcurrentMessagesNeverShareALineAcrossRotations)
{
    const int width = 100;  // 8 threads of 4000 lines: about 3.8 MiB, rotated under contention
    ASSERT_EQ(Open("threads.log", 50), 0);
    std::vector<std::thread> threads;
    for (char letter = 'a'; letter < 'i'; ++letter) {
        threads.emplace_back([letter] {
            for (int line = 0; line < 4000; ++line)
                Logger::LogMsg(Logger::LEVEL_ERROR, "threads", "%c %s\n", letter,
                               std::string(width, letter).c_str());
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    const QStringList files = QDir(dir.path()).entryList(QDir::Files);
    EXPECT_GE(files.size(), 3);
    for (const QString& name : files) {
        for (const std::string& line : Messages(name))
            ASSERT_EQ(line, line.substr(0, 2) + std::string(width, line[0]));
    }
}

}  // namespace
