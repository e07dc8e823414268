// The extractor unpacks into a fresh folder of a scratch folder; whatever the
// archive holds, nothing may appear in the scratch folder outside it.
#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include "extractor.h"
#include "files.h"
#include "notify-adapter.h"
#include "packages.h"

namespace {

struct Unpacked {
    int result;
    std::string reports;  // "total/current " per entry
    TreeSnapshot destination;
    QStringList beside;  // what the scratch folder holds besides the destination and the archive
};

// bytes empty: no archive file at all.
Unpacked Unpack(const std::string& bytes)
{
    QTemporaryDir scratch;
    const QString destination = scratch.filePath("dest");
    const QString archive = scratch.filePath("package.vpk");
    EXPECT_TRUE(QDir().mkpath(destination) && (bytes.empty() || WriteBytes(archive, bytes)));
    Extractor extractor;
    extractor.dest_path = destination.toUtf8().constData();
    extractor.archive_path = archive.toUtf8().constData();
    std::string reports;
    const QObject listening;  // the connection ends with it
    QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &listening,
                     [&](int of, int n) { reports += std::to_string(of) + "/" + std::to_string(n) + " "; });
    const int result = extractor.Extract();
    QStringList beside =
        QDir(scratch.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    beside.removeOne("dest");
    beside.removeOne("package.vpk");
    return {result, reports, SnapshotOfFolder(destination), beside};
}

TEST(Extractor, UnpacksEveryFormatReportingEachEntryUntilTheFirstBadOne)
{
    const std::vector<PackageEntry> three = {{"C", "", EntryKind::Folder, 0755}, {"C/1", "1"}, {"C/2", "2"}};
    const auto and_fourth = [&](const PackageEntry& fourth, int format = ARCHIVE_FORMAT_ZIP) {
        return MakeArchive({three[0], three[1], three[2], fourth}, format);
    };
    std::string damaged = and_fourth({"C/4", "4"}, ARCHIVE_FORMAT_TAR_USTAR);
    damaged[damaged.rfind("C/4")] ^= 0x20;  // the fourth header fails its checksum
    // A zip entry flagged as UTF-8 whose name is none: reading it only warns.
    std::string not_utf8 = and_fourth({"C/\xc3\xa9", "4"});
    for (size_t at = not_utf8.find("C/\xc3\xa9"); at != std::string::npos;
         at = not_utf8.find("C/\xc3\xa9", at))
        not_utf8.replace(at + 2, 2, "\xff\xfe");
    const struct {
        const char* name;
        std::string bytes;
        int result;
        const char* reports;  // "total/written " after each entry
        size_t entries;
    } rows[] = {
        {"zip", MakeArchive(three), 0, "3/1 3/2 3/3 ", 3},
        {"tar.gz", MakeArchive(three, ARCHIVE_FORMAT_TAR_USTAR, ARCHIVE_FILTER_GZIP), 0, "3/1 3/2 3/3 ", 3},
        {"tar.xz", MakeArchive(three, ARCHIVE_FORMAT_TAR_USTAR, ARCHIVE_FILTER_XZ), 0, "3/1 3/2 3/3 ", 3},
        {"tar.zst", MakeArchive(three, ARCHIVE_FORMAT_TAR_GNUTAR, ARCHIVE_FILTER_ZSTD), 0, "3/1 3/2 3/3 ", 3},
        {"bad fourth header", damaged, -1, "3/1 3/2 3/3 ", 3},
        {"fourth name no UTF-8", not_utf8, -1, "3/1 3/2 3/3 ", 3},
        {"fourth refused by the writer", and_fourth({"C/../../out", "x"}), -1, "4/1 4/2 4/3 ", 3},
        {"no entries", MakeArchive({}, ARCHIVE_FORMAT_TAR_USTAR), -1, "", 0},
        {"no archive", "", -1, "", 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Unpacked unpacked = Unpack(row.bytes);
        EXPECT_EQ(unpacked.result, row.result);
        EXPECT_EQ(unpacked.reports, row.reports);
        EXPECT_EQ(unpacked.destination.size(), row.entries);
    }
}

TEST(Extractor, WritesNothingOutsideTheDestination)
{
    const PackageEntry file = {"f", "data"};
    const auto link = [](const char* name, const char* target) {
        return PackageEntry{name, target, EntryKind::SymbolicLink, 0777};
    };
    const auto hard_link = [](const char* name, const char* target) {
        return PackageEntry{name, target, EntryKind::HardLink};
    };
    const struct {
        const char* name;
        std::vector<PackageEntry> entries;
        int result;
        TreeSnapshot unpacked;
        int format = ARCHIVE_FORMAT_TAR_PAX_RESTRICTED;  // zip holds no hard links
    } rows[] = {
        // clang-format off
        {"'..' in a name", {file, {"a/../../out", "x"}, {"after", "x"}}, -1, {{"f", "f:data"}}},
        {"absolute name", {{"/abs", "x"}}, 0, {{"abs", "f:x"}}},
        {"FIFO", {file, {"fifo", "", EntryKind::Fifo}}, -1, {{"f", "f:data"}}},
        {"link climbing out", {link("h", "../.."), {"h/planted", "x"}}, -1, {}},
        {"absolute link", {link("l", "/etc")}, -1, {}},
        {"chain of links", {link("c/d/l", "../.."), link("c/d/l2", "l/.."), {"c/d/l2/x", "x"}}, -1,
         {{"c", "d"}, {"c/d", "d"}, {"c/d/l", "l:../.."}}},
        {"later link redirects one", {{"d/e", "", EntryKind::Folder}, link("x", "d/e/../.."), link("d/e", ".")},
         -1, {{"d", "d"}, {"d/e", "d"}, {"x", "l:d/e/../.."}}},
        {"link replaced by a folder", {link("b", "c/d"), link("a", "b/../.."), {"b", "", EntryKind::Folder}},
         -1, {{"a", "l:b/../.."}, {"b", "l:c/d"}}},
        {"hard link", {file, hard_link("g", "f")}, 0, {{"f", "f:data"}, {"g", "f:data"}}},
        {"hard link, absolute", {file, hard_link("g", "/f")}, 0, {{"f", "f:data"}, {"g", "f:data"}}},
        {"hard link climbing out", {hard_link("g", "../../f")}, -1, {}},
        {"hard link behind a link", {{"d/f", "x"}, link("s", "d"), hard_link("g", "s/f")}, -1,
         {{"d", "d"}, {"d/f", "f:x"}, {"s", "l:d"}}},
        {"framework links", {{"V/A/lib", "x"}, link("V/Current", "A"), link("lib", "V/Current/lib")}, 0,
         {{"V", "d"}, {"V/A", "d"}, {"V/A/lib", "f:x"}, {"V/Current", "l:A"}, {"lib", "l:V/Current/lib"}}},
        {"read-only folder", {{"ro", "", EntryKind::Folder, 0555}, {"ro/f", "x", EntryKind::File, 0444}}, 0,
         {{"ro", "d"}, {"ro/f", "f:x"}}},
        {"non-ASCII name, C locale", {{"caf\xc3\xa9", "x"}}, 0, {{"caf\xc3\xa9", "f:x"}}, ARCHIVE_FORMAT_ZIP},
        // clang-format on
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const std::string bytes = MakeArchive(row.entries, row.format);
        EXPECT_FALSE(bytes.empty());
        const Unpacked unpacked = Unpack(bytes);
        EXPECT_EQ(unpacked.result, row.result);
        EXPECT_EQ(unpacked.destination, row.unpacked);
        EXPECT_EQ(unpacked.beside, QStringList());
    }
}

}  // namespace
