#include <gtest/gtest.h>

#include <archive.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <utility>
#include <vector>

#include "extractor.h"
#include "notify-adapter.h"
#include "strtable.h"
#include "test-archive.h"

namespace {

using Reports = std::vector<std::pair<int, int>>;

const std::vector<TestEntry> kThreeEntries = {
    {"Contents", "", true}, {"Contents/first.txt", "first"}, {"Contents/second.txt", "second"}};

class ExtractorTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QDir().mkpath(Dest()));
        extractor.dest_path = Dest().toUtf8().constData();
        extractor.archive_path = Archive().toUtf8().constData();
    }
    QString Dest() const { return work.path() + "/dest"; }
    QString Archive() const { return work.path() + "/package.vpk"; }
    Reports Progress() const
    {
        Reports reports;
        for (const QList<QVariant>& call : progress)
            reports.emplace_back(call.at(0).toInt(), call.at(1).toInt());
        return reports;
    }

    QTemporaryDir work;
    Extractor extractor;
    QSignalSpy progress{Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress};
    QSignalSpy label{Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText};
    LogCapture log;
};

TEST_F(ExtractorTest, UnpacksEveryFormatAndFilterWithOneReportPerEntry)
{
    const std::pair<int, int> kinds[] = {
        {ARCHIVE_FORMAT_TAR_PAX_RESTRICTED, ARCHIVE_FILTER_GZIP},
        {ARCHIVE_FORMAT_ZIP, ARCHIVE_FILTER_NONE},
        {ARCHIVE_FORMAT_TAR_USTAR, ARCHIVE_FILTER_XZ},
        {ARCHIVE_FORMAT_TAR_GNUTAR, ARCHIVE_FILTER_ZSTD},
    };
    for (const auto& [format, filter] : kinds) {
        SCOPED_TRACE(testing::Message() << format << "/" << filter);
        const std::string bytes = MakeArchive(format, filter, kThreeEntries);
        if (bytes.empty())
            continue;  // this libarchive build cannot write the pair
        ASSERT_TRUE(WriteBytes(Archive(), bytes));
        progress.clear();
        label.clear();
        EXPECT_EQ(extractor.Extract(), 0);
        EXPECT_EQ(Progress(), (Reports{{3, 1}, {3, 2}, {3, 3}}));
        ASSERT_EQ(label.count(), 1);
        EXPECT_EQ(label.at(0).at(0).toString(), StrTable::LoadStr(393));
        EXPECT_EQ(ReadBytes(Dest() + "/Contents/second.txt"), "second");
    }
    EXPECT_NE(log.Text().find("[DEBUG] extractor("), std::string::npos);
    EXPECT_NE(log.Text().find("): decompress from '" + Archive().toStdString() + "' to '" +
                              Dest().toStdString() + "'\n"),
              std::string::npos);
}

TEST_F(ExtractorTest, EntriesStayInsideAndStopAtDotDot)
{
    ASSERT_TRUE(WriteBytes(Archive(), MakeArchive(ARCHIVE_FORMAT_TAR_PAX_RESTRICTED,
                                                  ARCHIVE_FILTER_NONE,
                                                  {{"before.txt", "kept"},
                                                   {"/abs/name.txt", "inside"},
                                                   {"../escaped.txt", "out"},
                                                   {"after.txt", "never"}})));

    EXPECT_EQ(extractor.Extract(), -1);
    EXPECT_EQ(ReadBytes(Dest() + "/before.txt"), "kept");
    EXPECT_EQ(ReadBytes(Dest() + "/abs/name.txt"), "inside");
    EXPECT_FALSE(QFile::exists(work.path() + "/escaped.txt"));
    EXPECT_FALSE(QFile::exists(Dest() + "/after.txt"));
    EXPECT_EQ(Progress(), (Reports{{4, 1}, {4, 2}}));
    EXPECT_NE(log.Text().find("[ERROR] extractor("), std::string::npos);
    EXPECT_NE(log.Text().find("): archive_read_extract2 failed: '"), std::string::npos);
}

TEST_F(ExtractorTest, DamagedFourthHeaderFailsAfterThreeEntries)
{
    std::vector<TestEntry> entries = kThreeEntries;
    entries.push_back({"Contents/fourth.txt", "fourth"});
    ASSERT_TRUE(WriteBytes(Archive(), MakeDamagedTar(entries, 3)));
    EXPECT_EQ(extractor.Extract(), -1);
    EXPECT_EQ(Progress(), (Reports{{3, 1}, {3, 2}, {3, 3}}));
    EXPECT_EQ(ReadBytes(Dest() + "/Contents/second.txt"), "second");
    EXPECT_NE(log.Text().find("): archive_read_next_header failed: '"), std::string::npos);
}

TEST_F(ExtractorTest, UnusableInputFailsWithoutTouchingTheDestination)
{
    const struct {
        bool archive;
        ustring Extractor::*cleared;  // a path left empty, or none
        const char* logged;
    } cases[] = {
        {true, nullptr, "): Failed to calculate total file numbers, ret: 0\n"},
        {false, nullptr, "): Failed to calculate total file numbers, ret: -1\n"},
        {true, &Extractor::dest_path, "): Invalid Argument\n"},
        {true, &Extractor::archive_path, "): Invalid Argument\n"},
    };
    for (const auto& item : cases) {
        SCOPED_TRACE(item.logged);
        QFile::remove(Archive());
        if (item.archive) {
            ASSERT_TRUE(WriteBytes(Archive(), MakeArchive(ARCHIVE_FORMAT_TAR_USTAR,
                                                          ARCHIVE_FILTER_NONE, {})));
        }
        Extractor input = extractor;
        if (item.cleared)
            input.*item.cleared = ustring();
        label.clear();
        const LogCapture case_log;
        EXPECT_EQ(input.Extract(), -1);
        EXPECT_TRUE(QDir(Dest()).isEmpty());
        EXPECT_EQ(progress.count(), 0);
        EXPECT_NE(case_log.Text().find(item.logged), std::string::npos);
        EXPECT_EQ(label.count(), item.cleared ? 0 : 1);  // empty paths stop before the label
    }
}

}  // namespace
