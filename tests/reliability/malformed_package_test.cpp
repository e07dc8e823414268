// Damaged packages run through the whole installation: every failure must
// leave the old installation in place, and nothing may land outside it.
#include <archive.h>
#include <archive_entry.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <functional>
#include <map>
#include <iostream>
#include <memory>
#include <random>

#include "service-fixture.h"
#include "test-archive.h"
#include "tree-snapshot.h"

namespace {

const int kVariantsPerFormat = 200;
const char kOldInfo[] = "[Version]\nbuild_version=4\n";
const char kEscapeName[] = "escape";
const char kHugeTarSize[] = "77777777777";  // 8 GiB - 1, octal
const size_t kTarSizeField = 124;
const size_t kTarChecksumField = 148;
const size_t kTarFieldWidth = 8;
const size_t kTarHeaderSize = 512;
const uint32_t kHugeZipSize = 0xFFFFFFF0u;

struct Format {
    const char* name;
    int format;
    int filter;
    unsigned seed;
};

const Format kFormats[] = {
    {"tar.gz", ARCHIVE_FORMAT_TAR_USTAR, ARCHIVE_FILTER_GZIP, 1001},
    {"zip", ARCHIVE_FORMAT_ZIP, ARCHIVE_FILTER_NONE, 2002},
    {"tar.xz", ARCHIVE_FORMAT_TAR_USTAR, ARCHIVE_FILTER_XZ, 3003},
    {"tar.zst", ARCHIVE_FORMAT_TAR_USTAR, ARCHIVE_FILTER_ZSTD, 4004},
};

enum Damage { TRUNCATED, BIT_FLIPS, WRONG_MAGIC, DOT_DOT_NAME, ABSOLUTE_NAME, HUGE_SIZE, DAMAGE_KINDS };
const char* const kDamageNames[] = {"truncated", "bit flips", "wrong magic", "'..' name", "absolute name",
                                    "huge size"};

std::string TextOf(std::mt19937& random, size_t size)
{
    std::string text(size, ' ');
    for (char& c : text)
        c = static_cast<char>('a' + random() % 26);
    return text;
}

std::vector<TestEntry> PackageEntries()
{
    std::mt19937 random(7);
    return {
        {"Contents", "", true},
        {"Contents/MacOS", "", true},
        {"Contents/Resources", "", true},
        {"Contents/MacOS/cloud-ui", "#!/bin/sh\necho new\n"},
        {"Contents/Resources/data.bin", TextOf(random, 20000)},
        {"Contents/Resources/notes.txt", TextOf(random, 3000)},
        {"Contents/Resources/INFO", "[Version]\nbuild_version=5\n"},
    };
}

la_ssize_t AppendToString(archive*, void* sink, const void* buffer, size_t size)
{
    static_cast<std::string*>(sink)->append(static_cast<const char*>(buffer), size);
    return static_cast<la_ssize_t>(size);
}

// Compresses bytes as they are, for damage done below the compression.
std::string Filtered(const std::string& bytes, int filter)
{
    if (filter == ARCHIVE_FILTER_NONE)
        return bytes;
    std::string out;
    std::unique_ptr<archive, decltype(&archive_write_free)> writer(archive_write_new(), archive_write_free);
    std::unique_ptr<archive_entry, decltype(&archive_entry_free)> entry(archive_entry_new(), archive_entry_free);
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_size(entry.get(), static_cast<la_int64_t>(bytes.size()));
    if (archive_write_set_format_raw(writer.get()) != ARCHIVE_OK ||
        archive_write_add_filter(writer.get(), filter) != ARCHIVE_OK ||
        archive_write_set_bytes_in_last_block(writer.get(), 1) != ARCHIVE_OK ||
        archive_write_open(writer.get(), &out, nullptr, AppendToString, nullptr) != ARCHIVE_OK ||
        archive_write_header(writer.get(), entry.get()) != ARCHIVE_OK ||
        archive_write_data(writer.get(), bytes.data(), bytes.size()) != static_cast<la_ssize_t>(bytes.size()) ||
        archive_write_close(writer.get()) != ARCHIVE_OK)
        return std::string();
    return out;
}

void PutLittleEndian32(std::string& bytes, size_t at, uint32_t value)
{
    for (size_t i = 0; i < 4 && at + i < bytes.size(); ++i)
        bytes[at + i] = static_cast<char>((value >> (8 * i)) & 0xFF);
}

// Claims a size far beyond the data in one file entry's header, with a valid
// header checksum so that the reader believes it.
void ClaimHugeTarSize(std::string& tar, const std::string& name)
{
    const size_t header = tar.find(name);
    if (header == std::string::npos || header + kTarHeaderSize > tar.size())
        return;
    tar.replace(header + kTarSizeField, sizeof kHugeTarSize, kHugeTarSize, sizeof kHugeTarSize);
    tar.replace(header + kTarChecksumField, kTarFieldWidth, kTarFieldWidth, ' ');
    unsigned sum = 0;
    for (size_t i = 0; i < kTarHeaderSize; ++i)
        sum += static_cast<unsigned char>(tar[header + i]);
    char field[kTarFieldWidth + 1];
    snprintf(field, sizeof field, "%06o", sum);
    tar.replace(header + kTarChecksumField, 7, field, 7);
}

// Both the local header and the central directory record of every entry.
void ClaimHugeZipSizes(std::string& zip)
{
    for (size_t at = zip.find("PK\x03\x04"); at != std::string::npos; at = zip.find("PK\x03\x04", at + 1))
        PutLittleEndian32(zip, at + 22, kHugeZipSize);
    for (size_t at = zip.find("PK\x01\x02"); at != std::string::npos; at = zip.find("PK\x01\x02", at + 1))
        PutLittleEndian32(zip, at + 24, kHugeZipSize);
}

class MalformedPackage : public ServiceTest, public ::testing::WithParamInterface<Format> {
protected:
    void SetUp() override
    {
        ServiceTest::SetUp();
        UseBundle();
        WriteBundleVersion(kOldInfo);
        InstallOld();
        old_tree = SnapshotOfFolder(UserApp());
        ASSERT_FALSE(old_tree.empty());
    }

    void InstallOld()
    {
        QDir(UserApp()).removeRecursively();
        ASSERT_TRUE(WriteBytes(UserClient(), "#!/bin/sh\necho old\n"));
        ASSERT_TRUE(WriteBytes(UserApp() + "/Contents/Resources/INFO", kOldInfo));
        ASSERT_TRUE(WriteBytes(UserApp() + "/Contents/Resources/data.bin", std::string(5000, 'o')));
    }

    std::string Archive(const std::vector<TestEntry>& entries) const
    {
        return MakeArchive(GetParam().format, GetParam().filter, entries);
    }

    // Compressing is the slow part (xz above all, under the sanitizers), and
    // the variants share few distinct archives, so each is made once.
    const std::string& Cached(const std::string& key, const std::function<std::string()>& make)
    {
        auto found = archives.find(key);
        return found != archives.end() ? found->second : archives.emplace(key, make()).first->second;
    }
    std::string Variant(Damage damage, std::mt19937& random, std::string& inserted_name);
    void ExpectNothingEscaped(const std::string& context) const;

    TreeSnapshot old_tree;
    std::map<std::string, std::string> archives;
};

std::string MalformedPackage::Variant(Damage damage, std::mt19937& random, std::string& inserted_name)
{
    std::vector<TestEntry> entries = PackageEntries();
    std::string bytes = Cached("whole", [&] { return Archive(entries); });
    switch (damage) {
    case TRUNCATED:
        bytes.resize(1 + random() % (bytes.size() - 1));
        break;
    case BIT_FLIPS:
        for (unsigned flips = 1 + random() % 8; flips > 0; --flips)
            bytes[random() % bytes.size()] ^= static_cast<char>(1u << (random() % 8));
        break;
    case WRONG_MAGIC:
        for (size_t i = 0, n = 1 + random() % 8; i < n; ++i)
            bytes[i] = static_cast<char>(random());
        break;
    case DOT_DOT_NAME:
    case ABSOLUTE_NAME: {
        static const char* const kDotDotNames[] = {"../../escape", "Contents/../../../escape",
                                                   "Contents/MacOS/../../../../escape", ".."};
        inserted_name = damage == DOT_DOT_NAME ? kDotDotNames[random() % 4]
                                               : QDir(QDir(Home()).absoluteFilePath(kEscapeName)).path().toStdString();
        const size_t at = random() % entries.size();
        entries.insert(entries.begin() + static_cast<long>(at), TestEntry{inserted_name, "outside"});
        bytes = Cached(inserted_name + "@" + std::to_string(at), [&] { return Archive(entries); });
        break;
    }
    case HUGE_SIZE:
        if (GetParam().format == ARCHIVE_FORMAT_ZIP) {
            ClaimHugeZipSizes(bytes);
        } else {
            const std::string& name = entries[3 + random() % 4].name;
            bytes = Cached("huge " + name, [&] {
                std::string tar = MakeArchive(GetParam().format, ARCHIVE_FILTER_NONE, entries);
                ClaimHugeTarSize(tar, name);
                return Filtered(tar, GetParam().filter);
            });
        }
        break;
    default:
        break;
    }
    return bytes;
}

void MalformedPackage::ExpectNothingEscaped(const std::string& context) const
{
    const QStringList expected_home = {".Drovia"};
    EXPECT_EQ(QDir(Home()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden), expected_home)
        << context;
    EXPECT_FALSE(QFileInfo::exists(Home() + "/../" + kEscapeName)) << context;
    EXPECT_TRUE(QDir(Home() + "/.Drovia").entryList({"Drovia.app_tmp*"}, QDir::AllEntries | QDir::Hidden).isEmpty())
        << context;
}

TEST_P(MalformedPackage, FailuresLeaveTheOldInstallation)
{
    if (Cached("whole", [this] { return Archive(PackageEntries()); }).empty())
        GTEST_SKIP() << "this libarchive cannot write " << GetParam().name;
    std::mt19937 random(GetParam().seed);
    int accepted = 0;
    for (int index = 0; index < kVariantsPerFormat; ++index) {
        const Damage damage = static_cast<Damage>(index % DAMAGE_KINDS);
        std::string inserted_name;
        const std::string bytes = Variant(damage, random, inserted_name);
        const std::string context = std::string(GetParam().name) + " variant " + std::to_string(index) + " (" +
                                    kDamageNames[damage] + " " + inserted_name + ")";
        WritePackage(bytes);

        MacService service;
        const int result = service.PrepareUserEnv();

        ExpectNothingEscaped(context);
        if (damage == DOT_DOT_NAME) {
            EXPECT_EQ(result, -1) << context;
        }
        if (damage == ABSOLUTE_NAME) {
            EXPECT_EQ(result, 0) << context;
            EXPECT_TRUE(QFileInfo::exists(UserApp() + "/" + QString::fromStdString(inserted_name))) << context;
        }
        if (result != 0) {
            ASSERT_EQ(DescribeDifferences(old_tree, SnapshotOfFolder(UserApp())), "") << context;
            continue;
        }
        ++accepted;
        InstallOld();
    }
    std::cout << GetParam().name << ": " << kVariantsPerFormat << " variants, " << accepted
              << " still complete archives, " << kVariantsPerFormat - accepted << " refused with rollback\n";
}

INSTANTIATE_TEST_SUITE_P(Formats, MalformedPackage, ::testing::ValuesIn(kFormats),
                         [](const ::testing::TestParamInfo<Format>& info) {
                             std::string name = info.param.name;
                             name.erase(std::remove(name.begin(), name.end(), '.'), name.end());
                             return name;
                         });

}  // namespace
