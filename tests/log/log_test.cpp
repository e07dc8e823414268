#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdarg>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "log.h"

namespace {

const int ROTATION_SLOTS = 50;
const long MEBIBYTE = 1024 * 1024;
// "Nov 16 20:31:15 " in the C locale the tests run in.
const long STAMP_LENGTH = 16;
const char STAMP_PATTERN[] = "[A-Z][a-z]{2} [0-3][0-9] [0-2][0-9]:[0-5][0-9]:[0-6][0-9] ";

void logThroughC(int level, const char* component, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    std::string writable(component);
    LogMSG_c(level, writable.data(), format, args);
    va_end(args);
}

// The logger's state is process-wide. Every test leaves it on standard
// error, as it starts, and uses component names of its own, because
// thresholds from a level file outlive a new Initialize.
class LoggerTest : public ::testing::Test {
protected:
    void TearDown() override
    {
        Logger::Destroy();
        Logger::Initialize(Logger::TYPE_STDERR, "", "", 0);
    }

    std::string path(const std::string& name) const { return dir.filePath(QString::fromStdString(name)).toStdString(); }

    static std::string readFile(const std::string& file)
    {
        std::ifstream in(file, std::ios::binary);
        std::ostringstream content;
        content << in.rdbuf();
        return content.str();
    }

    static std::vector<std::string> lines(const std::string& text)
    {
        std::vector<std::string> result;
        std::istringstream in(text);
        for (std::string line; std::getline(in, line);)
            result.push_back(line);
        return result;
    }

    static long fileSize(const std::string& file) { return QFile(QString::fromStdString(file)).size(); }
    static bool exists(const std::string& file) { return QFile::exists(QString::fromStdString(file)); }

    void openLog(const std::string& name, int slot_count, const std::string& level_file = "")
    {
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, ustring(path(name)), ustring(level_file), slot_count), 0);
    }

    QTemporaryDir dir;
};

TEST_F(LoggerTest, ThresholdsComeFromTheLevelFile)
{
    const std::string levels = path("launcher.debug");
    std::ofstream(levels) << "lvl_verbose=7\nlvl_silenced=abc\ndefault_component=7\n";
    openLog("launcher.log", ROTATION_SLOTS, levels);

    // Every component gets one message per level; "default_component" in the
    // file does not change the threshold of components without an entry.
    for (const char* component : {"lvl_verbose", "lvl_silenced", "lvl_unlisted"}) {
        for (int level = Logger::LEVEL_ERROR; level <= Logger::LEVEL_DEBUG; ++level)
            Logger::LogMsg(static_cast<Logger::Level>(level), component, "[L%d] %s(%d): text\n", level, component,
                           __LINE__);
    }
    logThroughC(Logger::LEVEL_WARNING, "lvl_unlisted", "[L4] through C(%d)\n", 1);
    logThroughC(Logger::LEVEL_NOTE, "lvl_unlisted", "[L5] through C(%d)\n", 2);

    const std::vector<std::string> written = lines(readFile(path("launcher.log")));
    std::vector<std::string> messages;
    const std::regex stamped(std::string("^") + STAMP_PATTERN + "(.*)$");
    for (const std::string& line : written) {
        std::smatch match;
        ASSERT_TRUE(std::regex_match(line, match, stamped)) << line;
        messages.push_back(match[1].str().substr(0, match[1].str().find('(')));
    }
    const std::vector<std::string> expected = {
        "[L3] lvl_verbose", "[L4] lvl_verbose",  "[L5] lvl_verbose",  "[L6] lvl_verbose", "[L7] lvl_verbose",
        "[L3] lvl_unlisted", "[L4] lvl_unlisted", "[L4] through C",
    };
    EXPECT_EQ(messages, expected);
}

TEST_F(LoggerTest, FailedOpenKeepsTheEarlierStreamAndDestroyFallsBackToStdout)
{
    openLog("first.log", ROTATION_SLOTS);
    EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, ustring(path("missing/second.log")), "", ROTATION_SLOTS), -1);
    EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, "", "", ROTATION_SLOTS), -1);
    Logger::LogMsg(Logger::LEVEL_ERROR, "open_test", "[ERROR] still here(%d)\n", 1);
    EXPECT_NE(readFile(path("first.log")).find("still here(1)"), std::string::npos);
    EXPECT_FALSE(exists(path("missing/second.log")));

    Logger::Destroy();
    testing::internal::CaptureStdout();
    Logger::LogMsg(Logger::LEVEL_ERROR, "open_test", "[ERROR] after destroy(%d)\n", 2);
    const std::string console = testing::internal::GetCapturedStdout();
    EXPECT_TRUE(std::regex_match(console, std::regex(std::string("^") + STAMP_PATTERN + "\\[ERROR\\] after destroy\\(2\\)\n$")))
        << console;
    EXPECT_EQ(readFile(path("first.log")).find("after destroy"), std::string::npos);
}

TEST_F(LoggerTest, UnknownTypeOpensTheFileButWritesBareMessagesToStderr)
{
    ASSERT_EQ(Logger::Initialize(static_cast<Logger::Type>(9), ustring(path("odd.log")), "", ROTATION_SLOTS), 0);
    testing::internal::CaptureStderr();
    Logger::LogMsg(Logger::LEVEL_ERROR, "odd_test", "[ERROR] odd(%d)\n", 7);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "[ERROR] odd(7)\n");
    EXPECT_TRUE(exists(path("odd.log")));
    EXPECT_EQ(fileSize(path("odd.log")), 0);
}

TEST_F(LoggerTest, RotatesOnlyOnceTheCountPassesOneMebibyte)
{
    // Data from an earlier run is not counted: the count starts at 0 on open.
    const std::string earlier = path("earlier.log");
    std::ofstream(earlier) << std::string(2 * MEBIBYTE, 'o');
    openLog("earlier.log", ROTATION_SLOTS);
    Logger::LogMsg(Logger::LEVEL_ERROR, "size_test", "%s\n", "small");
    EXPECT_FALSE(exists(earlier + "_0"));

    const std::string live = path("launcher.log");
    openLog("launcher.log", ROTATION_SLOTS);

    // Exactly one mebibyte written: no rotation yet.
    const std::string body(MEBIBYTE - STAMP_LENGTH - 1, 'b');
    Logger::LogMsg(Logger::LEVEL_ERROR, "size_test", "%s\n", body.c_str());
    EXPECT_EQ(fileSize(live), MEBIBYTE);
    EXPECT_FALSE(exists(live + "_0"));

    // The message that crosses the limit is the last one of the old file.
    Logger::LogMsg(Logger::LEVEL_ERROR, "size_test", "%s\n", "x");
    EXPECT_EQ(fileSize(live + "_0"), MEBIBYTE + STAMP_LENGTH + 2);
    EXPECT_EQ(fileSize(live), 0);

    Logger::LogMsg(Logger::LEVEL_ERROR, "size_test", "%s\n", "y");
    EXPECT_EQ(fileSize(live), STAMP_LENGTH + 2);
    EXPECT_FALSE(exists(live + "_1"));
}

TEST_F(LoggerTest, KeepsOneOldFileFewerThanTheSlotCount)
{
    const std::string live = path("launcher.log");
    const std::string big(MEBIBYTE, 'z');
    openLog("launcher.log", ROTATION_SLOTS);
    const int rotations = 60;
    for (int i = 0; i < rotations; ++i)
        Logger::LogMsg(Logger::LEVEL_ERROR, "slots_test", "message %d %s\n", i, big.c_str());

    QStringList expected{"launcher.log"};
    for (int i = 0; i < ROTATION_SLOTS - 1; ++i)
        expected << QString("launcher.log_%1").arg(i);
    QStringList found = QDir(dir.path()).entryList(QDir::Files);
    expected.sort();
    found.sort();
    EXPECT_EQ(found, expected);

    // Newest first: slot 0 holds the last message, the last slot the oldest kept.
    const std::string oldest = "message " + std::to_string(rotations - ROTATION_SLOTS + 1) + " ";
    EXPECT_EQ(readFile(live + "_0").substr(STAMP_LENGTH, 11), "message 59 ");
    EXPECT_EQ(readFile(live + "_48").substr(STAMP_LENGTH, oldest.size()), oldest);
    EXPECT_EQ(fileSize(live), 0);
}

TEST_F(LoggerTest, SingleSlotKeepsExactlyOneOldFile)
{
    const std::string live = path("one.log");
    const std::string big(MEBIBYTE, 'z');
    openLog("one.log", 1);
    for (int i = 0; i < 3; ++i)
        Logger::LogMsg(Logger::LEVEL_ERROR, "slots_test", "message %d %s\n", i, big.c_str());
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), (QStringList{"one.log", "one.log_0"}));
    EXPECT_EQ(readFile(live + "_0").substr(STAMP_LENGTH, 10), "message 2 ");
}

TEST_F(LoggerTest, FailedRotationLeavesTheLoggerSilentUntilReinitialised)
{
    // A non-empty folder in slot 0 can neither be removed nor replaced by the
    // live file, so the rotation fails at its last steps.
    const std::string live = path("stuck.log");
    ASSERT_TRUE(QDir(dir.path()).mkpath("stuck.log_0/inner"));
    openLog("stuck.log", 1);
    const std::string big(MEBIBYTE, 'z');
    Logger::LogMsg(Logger::LEVEL_ERROR, "stuck_test", "%s\n", big.c_str());
    const long size_after_failure = fileSize(live);
    EXPECT_GT(size_after_failure, MEBIBYTE);

    Logger::LogMsg(Logger::LEVEL_ERROR, "stuck_test", "%s\n", "dropped");
    Logger::LogMsg(Logger::LEVEL_ERROR, "stuck_test", "%s\n", big.c_str());
    EXPECT_EQ(fileSize(live), size_after_failure);

    openLog("fresh.log", 1);
    Logger::LogMsg(Logger::LEVEL_ERROR, "stuck_test", "%s\n", "back");
    EXPECT_EQ(fileSize(path("fresh.log")), STAMP_LENGTH + 5);
}

TEST_F(LoggerTest, ConcurrentMessagesNeverShareALineAcrossRotations)
{
    const int threads = 8;
    const int messages = 500;
    const int payload = 1000;
    openLog("threads.log", ROTATION_SLOTS);

    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t) {
        workers.emplace_back([t] {
            const std::string text(payload, static_cast<char>('a' + t));
            for (int m = 0; m < messages; ++m)
                Logger::LogMsg(Logger::LEVEL_ERROR, "thread_test", "[ERROR] t%d(%d): %s\n", t, m, text.c_str());
        });
    }
    for (std::thread& worker : workers)
        worker.join();

    // About 4 MiB in all, so the rotations happen while other threads wait
    // to write; no message may be lost or torn on the way.
    std::string all;
    for (const QString& name : QDir(dir.path()).entryList(QDir::Files))
        all += readFile(path(name.toStdString()));
    const std::vector<std::string> written = lines(all);
    ASSERT_EQ(written.size(), static_cast<std::size_t>(threads * messages));
    const std::regex shape(std::string("^") + STAMP_PATTERN + "\\[ERROR\\] t([0-7])\\([0-9]+\\): ([a-h]+)$");
    std::vector<int> per_thread(threads, 0);
    for (const std::string& line : written) {
        std::smatch match;
        ASSERT_TRUE(std::regex_match(line, match, shape)) << line.substr(0, 80);
        const int t = std::stoi(match[1].str());
        EXPECT_EQ(match[2].str(), std::string(payload, static_cast<char>('a' + t)));
        ++per_thread[t];
    }
    EXPECT_EQ(per_thread, std::vector<int>(threads, messages));
    EXPECT_TRUE(exists(path("threads.log_2")));
}

}  // namespace
