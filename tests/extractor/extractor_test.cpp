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
#include "test-log.h"

namespace {

using Reports = std::vector<std::pair<int, int>>;

const std::vector<TestEntry> kThreeEntries = {
    {"Contents", "", true},
    {"Contents/first.txt", "first", false},
    {"Contents/second.txt", "second", false},
};

Reports ProgressReports(const QSignalSpy& spy)
{
    Reports reports;
    for (const QList<QVariant>& call : spy)
        reports.emplace_back(call.at(0).toInt(), call.at(1).toInt());
    return reports;
}

class ExtractorTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(work.isValid());
        ASSERT_TRUE(QDir().mkpath(Dest()));
        extractor.dest_path = Dest().toUtf8().constData();
        extractor.archive_path = ArchivePath().toUtf8().constData();
    }

    QString Dest() const { return work.path() + "/dest"; }
    QString ArchivePath() const { return work.path() + "/package.vpk"; }
    bool DestIsEmpty() const { return QDir(Dest()).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden); }

    QTemporaryDir work;
    Extractor extractor;
    QSignalSpy progress{Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress};
    QSignalSpy label{Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText};
    LogCapture log;
};

TEST_F(ExtractorTest, UnpacksEveryFormatAndFilterWithOneReportPerEntry)
{
    const struct {
        const char* name;
        int format;
        int filter;
    } kinds[] = {
        {"tar.gz", ARCHIVE_FORMAT_TAR_PAX_RESTRICTED, ARCHIVE_FILTER_GZIP},
        {"zip", ARCHIVE_FORMAT_ZIP, ARCHIVE_FILTER_NONE},
        {"tar.xz", ARCHIVE_FORMAT_TAR_USTAR, ARCHIVE_FILTER_XZ},
        {"tar.zst", ARCHIVE_FORMAT_TAR_GNUTAR, ARCHIVE_FILTER_ZSTD},
    };
    for (const auto& kind : kinds) {
        SCOPED_TRACE(kind.name);
        const std::string bytes = MakeArchive(kind.format, kind.filter, kThreeEntries);
        if (bytes.empty())
            continue;  // this libarchive build cannot write the pair
        ASSERT_TRUE(WriteBytes(ArchivePath(), bytes));
        progress.clear();
        label.clear();

        EXPECT_EQ(extractor.Count(), 3);
        EXPECT_EQ(extractor.Extract(), 0);
        EXPECT_EQ(ProgressReports(progress), (Reports{{3, 1}, {3, 2}, {3, 3}}));
        ASSERT_EQ(label.count(), 1);
        EXPECT_EQ(label.at(0).at(0).toString(), StrTable::LoadStr(393));
        EXPECT_EQ(ReadBytes(Dest() + "/Contents/first.txt"), "first");
        EXPECT_EQ(ReadBytes(Dest() + "/Contents/second.txt"), "second");
    }
    EXPECT_NE(log.Text().find("[DEBUG] extractor("), std::string::npos);
    const std::string decompress = std::string("): decompress from '") +
                                   extractor.archive_path.c_str_utf8() + "' to '" +
                                   extractor.dest_path.c_str_utf8() + "'\n";
    EXPECT_NE(log.Text().find(decompress), std::string::npos);
}

TEST_F(ExtractorTest, ReplacesExistingFilesAndKeepsAbsoluteNamesInside)
{
    ASSERT_TRUE(WriteBytes(Dest() + "/cloud-ui", "old"));
    QFile::setPermissions(Dest() + "/cloud-ui", QFile::ReadOwner);
    ASSERT_TRUE(WriteBytes(ArchivePath(),
                           MakeArchive(ARCHIVE_FORMAT_TAR_PAX_RESTRICTED, ARCHIVE_FILTER_GZIP,
                                       {{"cloud-ui", "new"}, {"/abs/name.txt", "inside"}})));

    EXPECT_EQ(extractor.Extract(), 0);
    EXPECT_EQ(ReadBytes(Dest() + "/cloud-ui"), "new");
    EXPECT_EQ(ReadBytes(Dest() + "/abs/name.txt"), "inside");
}

TEST_F(ExtractorTest, RefusesDotDotEntriesAndKeepsWhatCameBefore)
{
    ASSERT_TRUE(WriteBytes(ArchivePath(), MakeArchive(ARCHIVE_FORMAT_TAR_PAX_RESTRICTED,
                                                      ARCHIVE_FILTER_NONE,
                                                      {{"before.txt", "kept"},
                                                       {"../escaped.txt", "out"},
                                                       {"after.txt", "never"}})));

    EXPECT_EQ(extractor.Extract(), -1);
    EXPECT_EQ(ReadBytes(Dest() + "/before.txt"), "kept");
    EXPECT_FALSE(QFile::exists(work.path() + "/escaped.txt"));
    EXPECT_FALSE(QFile::exists(Dest() + "/after.txt"));
    EXPECT_EQ(ProgressReports(progress), (Reports{{3, 1}}));
    EXPECT_NE(log.Text().find("[ERROR] extractor("), std::string::npos);
    EXPECT_NE(log.Text().find("): archive_read_extract2 failed: '"), std::string::npos);
}

TEST_F(ExtractorTest, DamagedFourthHeaderFailsAfterThreeEntries)
{
    std::vector<TestEntry> entries = kThreeEntries;
    entries.push_back({"Contents/fourth.txt", "fourth"});
    ASSERT_TRUE(WriteBytes(ArchivePath(), MakeDamagedTar(entries, 3)));

    EXPECT_EQ(extractor.Count(), 3);
    EXPECT_EQ(extractor.Extract(), -1);
    EXPECT_EQ(ProgressReports(progress), (Reports{{3, 1}, {3, 2}, {3, 3}}));
    EXPECT_EQ(ReadBytes(Dest() + "/Contents/second.txt"), "second");
    EXPECT_FALSE(QFile::exists(Dest() + "/Contents/fourth.txt"));
    EXPECT_NE(log.Text().find("): archive_read_next_header failed: '"), std::string::npos);
}

TEST_F(ExtractorTest, UnusableArchivesFailBeforeTouchingTheDestination)
{
    std::string large_entry(200000, '\0');
    for (size_t i = 0; i < large_entry.size(); ++i)
        large_entry[i] = static_cast<char>((i * 7919) >> 3);
    const std::string complete = MakeArchive(ARCHIVE_FORMAT_TAR_USTAR, ARCHIVE_FILTER_GZIP,
                                             {{"a.bin", large_entry}, {"b.bin", large_entry}});
    const struct {
        const char* name;
        std::string bytes;
        bool exists;
        const char* count_failure;
    } cases[] = {
        {"no entries", MakeArchive(ARCHIVE_FORMAT_TAR_USTAR, ARCHIVE_FILTER_NONE, {}), true,
         "ret: 0\n"},
        {"zero bytes", "", true, "ret: 0\n"},
        {"missing", "", false, "ret: -1\n"},
        {"not an archive", "just some text, no archive here\n", true, nullptr},
    };
    for (const auto& item : cases) {
        SCOPED_TRACE(item.name);
        QFile::remove(ArchivePath());
        if (item.exists) {
            ASSERT_TRUE(WriteBytes(ArchivePath(), item.bytes));
        }
        const LogCapture case_log;

        EXPECT_EQ(extractor.Extract(), -1);
        EXPECT_TRUE(DestIsEmpty());
        EXPECT_EQ(progress.count(), 0);
        if (item.count_failure) {
            EXPECT_NE(case_log.Text().find(std::string("): Failed to calculate total file "
                                                       "numbers, ") + item.count_failure),
                      std::string::npos);
        }
    }
    EXPECT_NE(log.Text().find("): archive_read_open_filename failed: '"), std::string::npos);

    // Cut at the start and near the end: the first cannot be opened, the second
    // opens and counts but runs out in the middle of an entry's data.
    for (size_t kept : {complete.size() / 4, complete.size() - 64}) {
        ASSERT_TRUE(WriteBytes(ArchivePath(), complete.substr(0, kept)));
        EXPECT_EQ(extractor.Extract(), -1);
    }
}

TEST_F(ExtractorTest, EmptyPathsAndHandlesAreRefused)
{
    Extractor no_dest;
    no_dest.archive_path = extractor.archive_path;
    Extractor no_archive;
    no_archive.dest_path = extractor.dest_path;

    EXPECT_EQ(no_dest.Extract(), -1);
    EXPECT_EQ(no_archive.Extract(), -1);
    EXPECT_EQ(label.count(), 0);
    EXPECT_EQ(no_dest.Count(), -1);
    EXPECT_EQ(no_archive.List(), -1);
    EXPECT_EQ(extractor.copy_data(nullptr, nullptr), -1);
    const std::string text = log.Text();
    EXPECT_NE(text.find("[ERROR] extractor("), std::string::npos);
    EXPECT_NE(text.find("): Invalid Argument\n"), std::string::npos);
    EXPECT_NE(text.find("): Invalid argument\n"), std::string::npos);
    EXPECT_EQ(text.find("Failed to calculate"), std::string::npos);
}

TEST_F(ExtractorTest, ListPrintsEveryEntryName)
{
    ASSERT_TRUE(WriteBytes(ArchivePath(), MakeArchive(ARCHIVE_FORMAT_ZIP, ARCHIVE_FILTER_NONE,
                                                      kThreeEntries)));
    testing::internal::CaptureStdout();
    EXPECT_EQ(extractor.List(), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Contents/\nContents/first.txt\nContents/second.txt\n");
}

}  // namespace
