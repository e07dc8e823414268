// The upgrade service in process: the decision, the installation with its
// backups, and stopping the client.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cerrno>
#include <deque>

#include "files.h"
#include "install-layout.h"
#include "mac/mac-service.h"
#include "packages.h"

namespace {

const pid_t kClientPid = 4242;
const pid_t kEditorPid = 4343;

// Each test has a home folder of its own, named in non-ASCII. The bundle is
// the folder the test executable sits in; tests that write its files lock it,
// as test processes run side by side.
class ServiceTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(home.isValid() && qputenv("HOME", home.path().toUtf8())); }
    void TearDown() override { close(bundle_lock); }

    void UseBundle()
    {
        bundle_lock = HoldLock(QDir::cleanPath(resources + "/../../.test-lock"));
        ASSERT_GE(bundle_lock, 0);
        QDir(resources).removeRecursively();
    }
    void Ship(int build, const std::string& package)
    {
        ASSERT_TRUE(WriteBytes(resources + "/INFO", VersionFile(build)));
        ASSERT_TRUE(WriteBytes(resources + "/" + layout::kPackageArchive, package));
    }
    void InstallForUser(int build)
    {
        ASSERT_TRUE(WriteEntries(user_app, ClientBundle(build, {{"marker", "old"}})));
    }

    QTemporaryDir home{QDir::tempPath() + QString::fromUtf8("/J\xC3\xB6rg \xC3\x9C-XXXXXX")};
    const QString user_folder = home.path() + "/.Drovia";
    const QString user_app = user_folder + "/Drovia.app";
    const QString resources = QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../Resources");
    int bundle_lock = -1;
};

TEST_F(ServiceTest, UpgradeDecisionFollowsBuildNumbersAndClientPresence)
{
    UseBundle();
    // The lines of the user's and the bundle's version files (null: no file).
    const auto info = [](const char* lines) { return "[Version]\n" + std::string(lines) + "\n"; };
    const struct {
        const char *name, *source, *target;
        bool client, upgrade;
    } rows[] = {
        {"newer bundle", "build_version=120", "build_version=121", true, true},
        {"same build", "build_version=121", "build_version=121", true, false},
        {"older bundle", "build_version=122", "build_version=121", true, false},
        {"older bundle, client missing", "build_version=122", "build_version=121", false, true},
        {"nothing installed", nullptr, "build_version=121", false, true},
        {"digits up to a letter", "build_version=12a", "build_version=12", true, false},
        {"no digits", "build_version=abc", "build_version=1", true, true},
        {"no bundle version", "build_version=5", nullptr, true, false},
        {"only the build decides", "major_version=3\nbuild_version=9", "major_version=4\nbuild_version=9",
         true, false},
        {"another group", "build_version=9", "[Other]\nbuild_version=99", true, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        // A home of its own: the settings reader keeps what it read of a path,
        // and may miss a rewrite of the same size within the same moment.
        const QString row_home = home.filePath(row.name);
        const QString app = row_home + "/.Drovia/Drovia.app";
        EXPECT_TRUE(qputenv("HOME", row_home.toUtf8()) && QDir().mkpath(row_home));
        QFile::remove(resources + "/INFO");
        EXPECT_TRUE(!row.target || WriteBytes(resources + "/INFO", info(row.target)));
        EXPECT_TRUE(!row.source || WriteBytes(app + "/Contents/Resources/INFO", info(row.source)));
        EXPECT_TRUE(!row.client || WriteBytes(app + "/" + layout::kClientExecutable, "client"));
        MacService service;
        service.PreUpgrade();
        EXPECT_EQ(service.IsNeedUpgrade(), row.upgrade);
    }
    const LogCapture log;
    MacService().PostUpgrade();
    EXPECT_NE(log.Text().find("Failed to launch Drovia UI"), std::string::npos) << "the client cannot run";
}

TEST_F(ServiceTest, InstallationReplacesTheBundleWholeOrNotAtAll)
{
    UseBundle();
    // Read-only folders stay writable for their owner, so that the replaced tree can go later.
    std::vector<PackageEntry> files = {
        {"marker", "new"}, {"ro", "", EntryKind::Folder, 0555}, {"ro/f", "", {}, 0444}};
    const std::string good = MakeArchive(ClientBundle(5, files));
    files.push_back({"../refused", "out"});  // fails after the others, before the version file
    const std::string bad = MakeArchive(ClientBundle(5, files));
    // What lies beside the bundle, its marker naming it: backups by index, 'n' the staging folder.
    const auto beside = [this](char index) {
        return user_app + (index == 'n' ? "_new" : "_tmp" + (index == '0' ? "" : QString(index)));
    };
    // Whether build 4 is installed, what earlier runs left beside it, then the result and the marker
    // of the installation (empty: none).
    const struct {
        const char* name;
        bool old;
        const char* left_before;
        const std::string& package;
        int result;
        const char* marker;
    } rows[] = {
        {"fresh install", false, "", good, 0, "new"},
        {"backup of an interrupted commit", false, "0", good, 0, "new"},
        {"leftovers beside the bundle", true, "02n", good, 0, "new"},
        {"every backup name taken", true, "0123456789", good, 0, "new"},
        {"rolled back", true, "n", bad, -1, "old"},
        {"latest backup put back, then rolled back", false, "03", bad, -1, "earlier3"},
        {"nothing to roll back to", false, "", bad, -1, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        QDir(user_folder).removeRecursively();
        Ship(5, row.package);
        if (row.old)
            InstallForUser(4);
        for (const char* index = row.left_before; *index != '\0'; ++index)
            ASSERT_TRUE(WriteBytes(beside(*index) + "/marker", std::string("earlier") + *index));

        MacService service;
        service.SettleUserEnv();
        EXPECT_EQ(service.PrepareUserEnv(), row.result);
        service.SettleUserEnv();
        EXPECT_EQ(ReadBytes(user_app + "/marker"), row.marker);
        EXPECT_EQ(QDir(user_folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                  *row.marker ? QStringList("Drovia.app") : QStringList());
        EXPECT_EQ(QFileInfo(user_app + "/ro").permissions().testFlag(QFile::WriteOwner),
                  row.marker == std::string("new"));
    }
}

// The package is a zip, whose entries carry checksums: a damaged package
// either fails or still unpacks to exactly what was packed.
TEST_F(ServiceTest, DamagedPackagesLeaveTheOldInstallationAndNothingElse)
{
    UseBundle();
    std::mt19937 random(2026);
    const std::vector<PackageEntry> entries = ClientBundle(5, {{"data", RandomBytes(random, 20000)}});
    const std::string package = MakeArchive(entries);
    const TreeSnapshot unpacked = SnapshotOfEntries(entries);
    for (int variant = 0; variant < Repetitions(24, 800); ++variant) {
        std::string bytes = package;
        switch (variant % 3) {
        case 0: bytes.resize(1 + random() % (bytes.size() - 1)); break;
        case 1: bytes[random() % bytes.size()] ^= static_cast<char>(1 << (random() % 8)); break;
        default: bytes.replace(0, 4, RandomBytes(random, 4));
        }
        QDir(user_folder).removeRecursively();
        InstallForUser(4);
        const TreeSnapshot old_installation = SnapshotOfFolder(user_app);
        Ship(5, bytes);

        MacService service;
        const TreeSnapshot expected = service.PrepareUserEnv() == 0 ? unpacked : old_installation;
        service.SettleUserEnv();

        EXPECT_EQ(SnapshotOfFolder(user_app), expected) << "variant " << variant;
        EXPECT_EQ(SnapshotOfFolder(home.path()).size(), expected.size() + 2) << "more in the home folder";
    }
}

// Signals nothing and never waits. Each signal takes the next errno from
// errors (0: it succeeds); once they run out, the process seems alive.
// Process 4242 runs the per-user client, 4343 an editor, any other none.
class FakeSignalService : public MacService {
public:
    explicit FakeSignalService(const QString& client) : client(QFileInfo(client).canonicalFilePath()) {}

    std::vector<int> sent;  // the signal numbers, -1 for a signal to another pid than the client's
    int pauses = 0;
    std::deque<int> errors;

protected:
    int SendSignal(pid_t pid, int signal_number) override
    {
        sent.push_back(pid == kClientPid ? signal_number : -1);
        errno = errors.empty() ? 0 : errors.front();
        if (!errors.empty())
            errors.pop_front();
        return errno == 0 ? 0 : -1;
    }
    void PauseSeconds(pid_t, unsigned) override { ++pauses; }
    std::vector<pid_t> ProcessesOfUser() override { return {kEditorPid}; }
    ustring ExecutableOf(pid_t pid) override
    {
        errno = ENOENT;
        return ustring(pid == kClientPid ? qPrintable(client) : pid == kEditorPid ? "/usr/bin/editor" : "");
    }

private:
    QString client;
};

TEST_F(ServiceTest, StopSequenceSignalsOnlyTheClient)
{
    InstallForUser(4);
    // The pid file (empty: none), the launcher's record of the client it started (null: none), the
    // errors the signals meet, and the signals sent, the pauses and a line expected in the log.
    const struct {
        const char* name;
        std::string pid_file;
        const char* launch_record;
        std::deque<int> errors;
        std::vector<int> sent;
        int pauses;
        const char* line;
    } rows[] = {
        // clang-format off
        {"pid 0", "pid=0\n", nullptr, {}, {}, 0, nullptr},
        {"negative, 4242 modulo 2^32", "pid=-4294963054\n", nullptr, {}, {}, 0, nullptr},
        {"beyond the pid range, 4242 + 2^32", "pid=4294971538\n", nullptr, {}, {}, 0, nullptr},
        {"another program", "pid=4343\n", nullptr, {}, {}, 0,
         "4343 runs '/usr/bin/editor', not the Drovia client"},
        {"gone on SIGTERM", "pid = 4242 # client\n", nullptr, {ESRCH}, {SIGTERM}, 0, nullptr},
        {"zero padding", std::string("pid=4242\n\0\0\0", 12), nullptr, {0, 0, ESRCH}, {SIGTERM, 0, 0}, 1,
         nullptr},
        {"refused", "pid=4242\n", nullptr, {EPERM, EPERM}, {SIGTERM, 0, 0, 0, 0, 0, SIGKILL}, 5,
         "kill: Operation not permitted (1)"},
        {"started, no pid file yet", "", "pid=4242\n", {0, ESRCH}, {SIGTERM, 0}, 0, "does not exist"},
        {"pid file and record agree", "pid=4242\n", "pid=4242\n", {ESRCH}, {SIGTERM}, 0, nullptr},
        // clang-format on
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        QFile::remove(user_folder + "/" + layout::kPidFile);
        QFile::remove(user_folder + "/" + layout::kLaunchRecord);
        EXPECT_TRUE(row.pid_file.empty() || WriteBytes(user_folder + "/" + layout::kPidFile, row.pid_file));
        EXPECT_TRUE(!row.launch_record ||
                    WriteBytes(user_folder + "/" + layout::kLaunchRecord, row.launch_record));
        const LogCapture log;
        FakeSignalService service(user_app + "/" + layout::kClientExecutable);
        service.errors = row.errors;
        service.StopService();
        EXPECT_EQ(service.sent, row.sent);
        EXPECT_EQ(service.pauses, row.pauses);
        EXPECT_TRUE(!row.line || log.Text().find(row.line) != std::string::npos) << log.Text();
    }
}

// A FIFO where a version or pid file belongs blocks nothing, and nothing is signalled.
TEST_F(ServiceTest, OddFilesWhereVersionAndPidFilesBelongAreNeverRead)
{
    UseBundle();
    Ship(5, "");
    InstallForUser(4);
    const QString info = user_app + "/Contents/Resources/INFO";
    const QString pid_file = user_folder + "/" + layout::kPidFile;
    ASSERT_TRUE(QFile::remove(info) && mkfifo(qPrintable(info), 0644) == 0 &&
                mkfifo(qPrintable(pid_file), 0644) == 0);
    MacService decider;
    decider.PreUpgrade();
    EXPECT_TRUE(decider.IsNeedUpgrade()) << "a FIFO holds no build";

    const LogCapture log;
    FakeSignalService service(user_app + "/" + layout::kClientExecutable);
    service.StopService();
    EXPECT_TRUE(service.sent.empty());
    EXPECT_NE(log.Text().find("Failed to read pid file"), std::string::npos) << log.Text();
}

// The record is written over in place: a longer one from an earlier run
// leaves nothing behind.
TEST_F(ServiceTest, LaunchRecordNamesTheStartedClientAlone)
{
    const QString record = user_folder + "/" + layout::kLaunchRecord;
    const QString client = user_app + "/" + layout::kClientExecutable;
    ASSERT_TRUE(WriteBytes(record, "pid=2147483647 # an earlier run's\n") &&
                WriteBytes(client, "#!/bin/sh\n") &&
                QFile::setPermissions(client, QFile::ReadOwner | QFile::ExeOwner));
    ASSERT_EQ(MacService().LaunchPerUserBin(), 0);
    EXPECT_TRUE(QRegularExpression("\\Apid=[1-9][0-9]*\n\\z").match(ReadBytes(record).c_str()).hasMatch());
}

}  // namespace
