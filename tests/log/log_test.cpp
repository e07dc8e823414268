#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <ctime>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "log.h"

namespace {

const long MEBIBYTE = 1024 * 1024;
const long STAMP_LENGTH = 16;  // "Nov 16 20:31:15 " in the C locale

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
    // The messages of a file, each line's time stamp checked and cut off.
    std::vector<std::string> messages(const QString& name) const
    {
        std::vector<std::string> result;
        std::ifstream in(path(name), std::ios::binary);
        for (std::string line; std::getline(in, line);) {
            std::tm stamp{};
            EXPECT_EQ(strptime(line.c_str(), "%b %d %H:%M:%S ", &stamp), line.c_str() + STAMP_LENGTH) << line.substr(0, 40);
            result.push_back(line.substr(STAMP_LENGTH));
        }
        return result;
    }
    long size(const QString& name) const { return QFileInfo(dir.filePath(name)).size(); }
    QStringList files() const { return QDir(dir.path()).entryList(QDir::Files, QDir::Name); }
    void openLog(const QString& name, int slots_count, const std::string& level_file = "")
    {
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, ustring(path(name)), ustring(level_file), slots_count), 0);
    }
    void logBig(const char* component) { Logger::LogMsg(Logger::LEVEL_ERROR, component, "%s\n", big.c_str()); }

    QTemporaryDir dir;
    const std::string big = std::string(MEBIBYTE, 'z');
};

TEST_F(LoggerTest, ThresholdsComeFromTheLevelFile)
{
    // "default_component" in the file must not become the fallback threshold.
    std::ofstream(path("launcher.debug")) << "lvl_verbose=7\nlvl_silenced=abc\ndefault_component=7\n";
    openLog("launcher.log", 50, path("launcher.debug"));
    for (const char* component : {"lvl_verbose", "lvl_silenced", "lvl_unlisted"}) {
        for (int level = Logger::LEVEL_ERROR; level <= Logger::LEVEL_DEBUG; ++level)
            Logger::LogMsg(static_cast<Logger::Level>(level), component, "L%d %s\n", level, component);
    }
    const std::vector<std::string> expected = {"L3 lvl_verbose", "L4 lvl_verbose", "L5 lvl_verbose", "L6 lvl_verbose",
                                               "L7 lvl_verbose", "L3 lvl_unlisted", "L4 lvl_unlisted"};
    EXPECT_EQ(messages("launcher.log"), expected);
}

TEST_F(LoggerTest, RotatesOnceTheCountSinceOpeningPassesOneMebibyte)
{
    std::ofstream(path("earlier.log")) << std::string(2 * MEBIBYTE, 'o');
    openLog("earlier.log", 50);
    Logger::LogMsg(Logger::LEVEL_ERROR, "size_test", "small\n");
    EXPECT_EQ(files(), QStringList{"earlier.log"});

    openLog("live.log", 50);
    // A failed open keeps the stream and the count it had.
    EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, ustring(path("missing/other.log")), "", 50), -1);
    Logger::LogMsg(Logger::LEVEL_ERROR, "size_test", "%s\n", big.substr(STAMP_LENGTH + 1).c_str());
    EXPECT_EQ(size("live.log"), MEBIBYTE);
    EXPECT_FALSE(QFile::exists(dir.filePath("live.log_0")));
    Logger::LogMsg(Logger::LEVEL_ERROR, "size_test", "x\n");
    EXPECT_EQ(size("live.log_0"), MEBIBYTE + STAMP_LENGTH + 2);
    EXPECT_EQ(files(), (QStringList{"earlier.log", "live.log", "live.log_0"}));
    EXPECT_EQ(size("live.log"), 0);
}

TEST_F(LoggerTest, KeepsOneOldFileFewerThanTheSlotCountNewestFirst)
{
    openLog("launcher.log", 50);
    for (int i = 0; i < 52; ++i)
        Logger::LogMsg(Logger::LEVEL_ERROR, "slots_test", "message %d %s\n", i, big.c_str());
    QStringList expected{"launcher.log"};
    for (int i = 0; i < 49; ++i)
        expected << QString("launcher.log_%1").arg(i);
    expected.sort();
    EXPECT_EQ(files(), expected);
    EXPECT_EQ(messages("launcher.log_0").at(0).substr(0, 11), "message 51 ");
    EXPECT_EQ(messages("launcher.log_48").at(0).substr(0, 11), "message 3 z");
}

TEST_F(LoggerTest, FailedRotationLeavesTheLoggerSilentUntilReinitialised)
{
    // A non-empty folder in the only slot can neither be removed nor replaced.
    ASSERT_TRUE(QDir(dir.path()).mkpath("stuck.log_0/inner"));
    openLog("stuck.log", 1);
    logBig("stuck_test");
    const long stuck_size = size("stuck.log");
    logBig("stuck_test");
    EXPECT_EQ(size("stuck.log"), stuck_size);

    openLog("fresh.log", 1);
    logBig("stuck_test");
    logBig("stuck_test");
    EXPECT_EQ(size("fresh.log_0"), MEBIBYTE + STAMP_LENGTH + 1);
}

TEST_F(LoggerTest, ConcurrentMessagesNeverShareALineAcrossRotations)
{
    const int threads = 8, count = 4000, width = 100;  // about 3.8 MiB: rotations happen under contention
    openLog("threads.log", 50);
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t) {
        workers.emplace_back([t] {
            const std::string text(width, static_cast<char>('a' + t));
            for (int m = 0; m < count; ++m)
                Logger::LogMsg(Logger::LEVEL_ERROR, "thread_test", "%d %s\n", t, text.c_str());
        });
    }
    for (std::thread& worker : workers)
        worker.join();

    std::vector<int> per_thread(threads, 0);
    for (const QString& name : files()) {
        for (const std::string& message : messages(name)) {
            const int t = message[0] - '0';
            ASSERT_TRUE(t >= 0 && t < threads && message == std::to_string(t) + " " + std::string(width, 'a' + t))
                << message.substr(0, 40);
            ++per_thread[t];
        }
    }
    // A message that finds the stream closed mid-rotation is dropped unlocked,
    // so only an upper bound holds per thread.
    for (int t = 0; t < threads; ++t)
        EXPECT_TRUE(per_thread[t] > 0 && per_thread[t] <= count) << t << ": " << per_thread[t];
    EXPECT_GE(files().size(), 3);
}

}  // namespace
