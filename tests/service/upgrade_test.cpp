#include <archive.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <string>
#include <vector>

#include "service-fixture.h"
#include "test-archive.h"

namespace {

const std::vector<TestEntry> kPackage = {
    {"Contents", "", true},
    {"Contents/MacOS", "", true},
    {"Contents/MacOS/cloud-ui", "new client"},
    {"Contents/Resources/INFO", "[Version]\nbuild_version=200\n"},
};

bool MakeFolderWith(const QString& folder, const std::string& file_text)
{
    return WriteBytes(folder + "/marker.txt", file_text);
}

class UpgradeTest : public ServiceTest {
protected:
    // An old per-user bundle with a client and a file the package lacks.
    void InstallOldBundle()
    {
        ASSERT_TRUE(WriteBytes(UserClient(), "old client"));
        ASSERT_TRUE(MakeFolderWith(UserApp(), "old"));
    }
    bool HasOldBundle() const { return ReadBytes(UserApp() + "/marker.txt") == "old"; }
    QString Backup(const QString& suffix) const { return UserApp() + "_tmp" + suffix; }
};

TEST_F(UpgradeTest, LayoutFollowsHomeAndExecutableFolder)
{
    const QString home = Home() + QString::fromUtf8("/J\xC3\xB6rg \xC3\x9C\x6E\xC3\xAF");
    ASSERT_TRUE(QDir().mkpath(home));
    SetHome(home);
    const QString root = QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../..");

    EXPECT_TRUE(root.endsWith("/Drovia.app"));
    EXPECT_EQ(ToQString(Service::GetRootDroviaInstallPath()), root);
    EXPECT_EQ(ToQString(Service::GetRootDroviaResourceInstallPath()), root + "/Contents/Resources");
    EXPECT_EQ(ToQString(Service::GetUserInstallPath()), home);
    EXPECT_EQ(ToQString(Service::GetUserDroviaInstallPath()), home + "/.Drovia");
    EXPECT_EQ(ToQString(Service::GetUserDroviaAppInstallPath()), home + "/.Drovia/Drovia.app");
    ExposedService service;
    EXPECT_EQ(service.timeout, 10000);
    EXPECT_EQ(ToQString(service.user_app_path), home + "/.Drovia/Drovia.app");
}

TEST_F(UpgradeTest, DecisionFollowsBuildNumbersAndClientPresence)
{
    UseBundle();
    const struct {
        const char* source;  // per-user build_version line; null: no per-user version file
        const char* target;  // bundle's build_version line; null: no bundle version file
        bool client;
        bool upgrade;
    } rows[] = {
        {"120", "121", true, true},     {"121", "121", true, false},
        {"121", "121", false, true},    {"122", "121", false, true},
        {"122", "121", true, false},    {nullptr, "121", false, true},
        {"12a", "12", true, false},     {"\" 7\"", "7", true, false},
        {"abc", "1", true, true},       {"5", nullptr, true, false},
        {"5", nullptr, false, true},    {"4", "not a number", true, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.source ? row.source : "-") + " -> " +
                     (row.target ? row.target : "-") + (row.client ? " client" : " none"));
        QDir(Home() + "/.Drovia").removeRecursively();
        QFile::remove(BundleResources() + "/INFO");
        if (row.target)
            WriteBundleVersion(VersionFile(std::string("build_version=") + row.target));
        if (row.source) {
            ASSERT_TRUE(WriteBytes(UserApp() + "/Contents/Resources/INFO",
                                   VersionFile(std::string("build_version=") + row.source)));
        }
        if (row.client) {
            ASSERT_TRUE(WriteBytes(UserClient(), "client"));
        }
        ExposedService service;
        service.PreUpgrade();
        EXPECT_EQ(service.IsNeedUpgrade(), row.upgrade);
    }
    EXPECT_NE(log.Text().find("[INFO] cloud-service("), std::string::npos);
    EXPECT_NE(log.Text().find("): source does not exist\n"), std::string::npos);
    EXPECT_NE(log.Text().find("[DEBUG] mac/mac-service("), std::string::npos);
    EXPECT_NE(log.Text().find("): source version = 12, target version = 12\n"), std::string::npos);
    EXPECT_NE(log.Text().find("): source version = 7, target version = 7\n"), std::string::npos);
}

TEST_F(UpgradeTest, VersionFilesAreReadAsWrittenAndBrokenOnesAsEmpty)
{
    UseBundle();
    WriteBundleVersion("[Other]\nbuild_version=999\n" +
                       VersionFile("major_version=4\nminor_version=2\nbuild_version=121\n"
                                   "icon_overlay_version=7"));
    ASSERT_TRUE(WriteBytes(UserClient(), "client"));
    const QString source_file = UserApp() + "/Contents/Resources/INFO";
    const std::string broken_files[] = {"", "\x01\x02 binary \xff\xfe", "[Other]\nbuild_version=9\n"};
    for (const std::string& broken : broken_files) {
        ASSERT_TRUE(WriteBytes(source_file, broken));
        ExposedService service;
        service.PreUpgrade();
        EXPECT_TRUE(service.source_build_version.empty());
        EXPECT_TRUE(service.source_major_version.empty());
        EXPECT_EQ(std::string(service.target_major_version.c_str_utf8()), "4");
        EXPECT_EQ(std::string(service.target_icon_overlay_version.c_str_utf8()), "7");
        EXPECT_TRUE(service.IsNeedUpgrade());
    }
    EXPECT_EQ(CountOf(log.Text(), "): target_version = (4, 2, 121, 7)\n"), 3u);
    EXPECT_EQ(CountOf(log.Text(), "): source_version = (, , , )\n"), 3u);
    EXPECT_NE(log.Text().find("): Target version: ('121', '7')\n"), std::string::npos);

    // Only the build number decides: a higher major version alone is no upgrade.
    ASSERT_TRUE(WriteBytes(source_file, VersionFile("major_version=3\nbuild_version=121")));
    ExposedService same_build;
    same_build.PreUpgrade();
    EXPECT_FALSE(same_build.IsNeedUpgrade());
}

TEST_F(UpgradeTest, FreshInstallUnpacksThePackageAndClearsLeftovers)
{
    UseBundle();
    WriteBundleVersion(VersionFile("build_version=200"));
    WritePackage(MakeArchive(ARCHIVE_FORMAT_ZIP, ARCHIVE_FILTER_NONE, kPackage));

    MacService first_run;
    first_run.PreUpgrade();
    ASSERT_TRUE(first_run.IsNeedUpgrade());
    EXPECT_EQ(first_run.HandlePackageUpgrade(), 0);
    EXPECT_EQ(ReadBytes(UserClient()), "new client");
    EXPECT_EQ(log.Text().find("pid file"), std::string::npos);  // nothing to stop
    EXPECT_NE(log.Text().find("): extract package: '"), std::string::npos);
    EXPECT_NE(log.Text().find("): user installation is ready, removing backup app\n"),
              std::string::npos);
    MacService second_run;
    second_run.PreUpgrade();
    EXPECT_FALSE(second_run.IsNeedUpgrade());

    // A backup that an earlier run left behind goes once the install is good.
    QDir(UserApp()).removeRecursively();
    ASSERT_TRUE(MakeFolderWith(Backup(""), "left over"));
    EXPECT_EQ(MacService().PrepareUserEnv(), 0);
    EXPECT_FALSE(QFile::exists(Backup("")));
    EXPECT_EQ(ReadBytes(UserClient()), "new client");
}

TEST_F(UpgradeTest, OldBundleMovesToTheFirstFreeBackupName)
{
    UseBundle();
    WritePackage(MakeArchive(ARCHIVE_FORMAT_TAR_PAX_RESTRICTED, ARCHIVE_FILTER_GZIP, kPackage));
    InstallOldBundle();
    ASSERT_TRUE(MakeFolderWith(Backup(""), "earlier run"));
    ASSERT_TRUE(MakeFolderWith(Backup("2"), "higher index"));

    EXPECT_EQ(MacService().PrepareUserEnv(), 0);
    EXPECT_EQ(ReadBytes(UserClient()), "new client");
    EXPECT_FALSE(QFile::exists(UserApp() + "/marker.txt"));
    EXPECT_FALSE(QFile::exists(Backup("")));
    EXPECT_FALSE(QFile::exists(Backup("1")));
    EXPECT_TRUE(QFile::exists(Backup("2")));
    const std::string refused = "): failed to backup app from '" +
                                UserApp().toStdString() + "' -> '" +
                                Backup("").toStdString() + "'\n";
    EXPECT_EQ(CountOf(log.Text(), refused), 1u);
}

TEST_F(UpgradeTest, TenOccupiedBackupNamesLeaveTheOldBundleAlone)
{
    UseBundle();
    WritePackage(MakeArchive(ARCHIVE_FORMAT_ZIP, ARCHIVE_FILTER_NONE, kPackage));
    InstallOldBundle();
    for (int index = 0; index < 10; ++index)
        ASSERT_TRUE(MakeFolderWith(Backup(index ? QString::number(index) : ""), "occupied"));

    EXPECT_EQ(MacService().PrepareUserEnv(), -1);
    EXPECT_TRUE(HasOldBundle());
    EXPECT_EQ(ReadBytes(UserClient()), "old client");
    const std::string text = log.Text();
    EXPECT_EQ(CountOf(text, "[ERROR] cloud-service("), 11u);
    EXPECT_NE(text.find("' -> '" + Backup("9").toStdString() + "' at max retries, exiting\n"),
              std::string::npos);
    EXPECT_EQ(text.find("extract package"), std::string::npos);
}

TEST_F(UpgradeTest, FailedUnpackRollsBackOrKeepsWhatWasUnpacked)
{
    UseBundle();
    WritePackage(MakeDamagedTar(kPackage, 3));

    InstallOldBundle();
    EXPECT_EQ(MacService().PrepareUserEnv(), -1);
    EXPECT_TRUE(HasOldBundle());
    EXPECT_EQ(ReadBytes(UserClient()), "old client");
    EXPECT_FALSE(QFile::exists(Backup("")));
    EXPECT_NE(log.Text().find("): Failed to extract package, rollback to old installation\n"),
              std::string::npos);

    QDir(UserApp()).removeRecursively();
    const LogCapture no_old_log;
    EXPECT_EQ(MacService().PrepareUserEnv(), -1);
    EXPECT_EQ(ReadBytes(UserClient()), "new client");
    EXPECT_NE(no_old_log.Text().find(
                  "): Failed to extract package, and no old installation to rollback\n"),
              std::string::npos);

    // A file where the installation folder belongs: nothing can be unpacked.
    QDir(Home() + "/.Drovia").removeRecursively();
    ASSERT_TRUE(WriteBytes(Home() + "/.Drovia", "not a folder"));
    const LogCapture blocked_log;
    EXPECT_EQ(MacService().PrepareUserEnv(), -1);
    EXPECT_NE(blocked_log.Text().find("): failed to create folder: '" + UserApp().toStdString() +
                                      "'\n"),
              std::string::npos);
}

TEST_F(UpgradeTest, RemoveAgedFoldersDeletesTheOldLayoutOnly)
{
    const QString aged = Home() + "/.Drovia/app";
    ASSERT_TRUE(WriteBytes(aged + "/nested/file", "old layout"));
    ASSERT_TRUE(WriteBytes(UserClient(), "client"));
    MacService service;

    service.RemoveAgedFolders();
    EXPECT_FALSE(QFile::exists(aged));
    EXPECT_TRUE(QFile::exists(UserClient()));
    service.RemoveAgedFolders();
    EXPECT_EQ(CountOf(log.Text(), "): removing aged app folder " + aged.toStdString() + "\n"), 2u);
}

}  // namespace
