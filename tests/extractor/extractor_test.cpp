#include <gtest/gtest.h>
#include <archive.h>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include "extractor.h"
#include "notify-adapter.h"
#include "test-archive.h"

// Each row unpacks into an empty folder and expects progress (total, 1)..(total, reports).
TEST(ExtractorTest, UnpacksInOrderAndStopsAtTheFirstBadEntry)
{
    const std::vector<TestEntry> four = {{"C", "", true}, {"C/1", "1"}, {"C/2", "2"}, {"C/4", "4"}};
    const std::vector<TestEntry> three(four.begin(), four.end() - 1);
    std::string damaged = MakeArchive(ARCHIVE_FORMAT_TAR_USTAR, ARCHIVE_FILTER_NONE, four);
    damaged[damaged.rfind("C/4")] ^= 0x20;  // the fourth header fails its checksum
    const struct {
        std::string bytes;  // empty: no archive
        int result, total, reports;
        const char* kept = nullptr;  // the last entry unpacked
        const char* gone = nullptr;  // the first entry never unpacked
    } rows[] = {
        {MakeArchive(ARCHIVE_FORMAT_TAR_PAX_RESTRICTED, ARCHIVE_FILTER_GZIP, three), 0, 3, 3, "C/2"},
        {MakeArchive(ARCHIVE_FORMAT_ZIP, ARCHIVE_FILTER_NONE, three), 0, 3, 3, "C/2"},
        {MakeArchive(ARCHIVE_FORMAT_TAR_USTAR, ARCHIVE_FILTER_XZ, three), 0, 3, 3, "C/2"},
        {MakeArchive(ARCHIVE_FORMAT_TAR_GNUTAR, ARCHIVE_FILTER_ZSTD, three), 0, 3, 3, "C/2"},
        {damaged, -1, 3, 3, "C/2", "C/4"},
        {MakeArchive(ARCHIVE_FORMAT_TAR_PAX_RESTRICTED, ARCHIVE_FILTER_NONE,
                     {{"a", "a"}, {"/b", "b"}, {"../out", "o"}, {"after", "x"}}),
         -1, 4, 2, "b", "../out"},
        {MakeArchive(ARCHIVE_FORMAT_TAR_USTAR, ARCHIVE_FILTER_NONE, {}), -1, 0, 0},
        {"", -1, 0, 0},
    };
    for (const auto& row : rows) {
        if (row.result == 0 && row.bytes.empty())
            continue;  // this libarchive build cannot write the pair
        SCOPED_TRACE(&row - rows);
        QTemporaryDir work;
        const QString dest = work.path() + "/dest", archive = work.path() + "/package.vpk";
        ASSERT_TRUE(QDir().mkpath(dest) && (row.bytes.empty() || WriteBytes(archive, row.bytes)));
        Extractor extractor;
        extractor.dest_path = dest.toUtf8().constData();
        extractor.archive_path = archive.toUtf8().constData();
        QSignalSpy spy(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress);
        EXPECT_EQ(extractor.Extract(), row.result);
        ASSERT_EQ(spy.count(), row.reports);
        for (int at = 0; at < row.reports; ++at)
            EXPECT_EQ(spy.at(at), (QList<QVariant>{row.total, at + 1}));
        EXPECT_EQ(ReadBytes(dest + "/" + row.kept).size(), row.kept ? 1u : 0u);
        EXPECT_TRUE(!row.gone || !QFile::exists(dest + "/" + row.gone));
        EXPECT_EQ(QDir(dest).isEmpty(), !row.kept);
    }
}
