#include "file-op.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

namespace fs = std::filesystem;

namespace {

// A fresh folder per test, spelled canonically so exact lookups can pass.
std::string makeTempFolder(const std::string& parent) {
    std::string pattern = parent + "/file-op-test-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr)
        return std::string();
    char canonical[PATH_MAX];
    return realpath(pattern.c_str(), canonical) != nullptr ? canonical : std::string();
}

void writeFile(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

std::string readFile(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

bool sameDevice(const std::string& a, const std::string& b) {
    struct stat sa, sb;
    return stat(a.c_str(), &sa) == 0 && stat(b.c_str(), &sb) == 0 && sa.st_dev == sb.st_dev;
}

mode_t permissions(const std::string& path) {
    struct stat st;
    return stat(path.c_str(), &st) == 0 ? (st.st_mode & 07777) : 0;
}

class FileOpTest : public ::testing::Test {
protected:
    void SetUp() override {
        root = makeTempFolder(fs::temp_directory_path().string());
        ASSERT_FALSE(root.empty());
        setenv("HOME", root.c_str(), 1);
    }

    void TearDown() override {
        // remove_all removes links as links, so nothing outside is touched.
        std::error_code ignored;
        fs::remove_all(root, ignored);
        if (!other_device.empty())
            fs::remove_all(other_device, ignored);
    }

    // A folder on another file system, or skips the test when there is none.
    void useOtherDevice() {
        other_device = makeTempFolder("/dev/shm");
        if (other_device.empty() || sameDevice(root, other_device))
            GTEST_SKIP() << "no second file system next to " << root;
    }

    std::string at(const std::string& relative) const { return root + "/" + relative; }

    std::string root;
    std::string other_device;
};

TEST_F(FileOpTest, RenameReportsBadArgumentsAndMissingSources) {
    writeFile(at("f"), "x");
    EXPECT_EQ(FSRename("", at("g"), false), -1);
    EXPECT_EQ(FSRename(at("missing"), at("g"), false), -2);
    // Exact lookups refuse a source reached through a "." component.
    EXPECT_EQ(FSRename(root + "/./f", at("g"), true), -2);
    EXPECT_EQ(FSRename(at("f"), at(std::string(NAME_MAX + 1, 'n')), false), -100);
    EXPECT_EQ(FSRename(at("f"), at("no-such-folder/g"), false), -3);
    EXPECT_EQ(FSRename(at("f"), at("g"), false), 0);
    EXPECT_EQ(readFile(at("g")), "x");
}

TEST_F(FileOpTest, RenameAcrossFileSystemsMovesFilesAndTrees) {
    useOtherDevice();
    if (IsSkipped())
        return;
    writeFile(at("file"), "payload");
    ASSERT_EQ(FSRename(at("file"), other_device + "/file", false), 0);
    EXPECT_FALSE(fs::exists(at("file")));
    EXPECT_EQ(readFile(other_device + "/file"), "payload");

    fs::create_directories(at("tree/sub/deeper"));
    writeFile(at("tree/a"), "a");
    writeFile(at("tree/sub/b"), "b");
    writeFile(at("tree/sub/deeper/c"), "c");
    ASSERT_EQ(FSRename(at("tree"), other_device + "/tree", false), 0);
    EXPECT_FALSE(fs::exists(at("tree")));
    EXPECT_EQ(readFile(other_device + "/tree/a"), "a");
    EXPECT_EQ(readFile(other_device + "/tree/sub/b"), "b");
    EXPECT_EQ(readFile(other_device + "/tree/sub/deeper/c"), "c");

    // A link cannot be carried over by copying; it stays, and that is no error.
    fs::create_directory_symlink(other_device, at("link"));
    EXPECT_EQ(FSRename(at("link"), other_device + "/link", false), 0);
    EXPECT_TRUE(fs::is_symlink(at("link")));
    EXPECT_FALSE(fs::exists(fs::symlink_status(other_device + "/link")));
}

TEST_F(FileOpTest, RenameAcrossFileSystemsKeepsPartialMoveOnFailure) {
    useOtherDevice();
    if (IsSkipped())
        return;
    const std::set<std::string> names = {"a", "b", "blocked", "c", "d"};
    fs::create_directories(at("tree"));
    for (const std::string& name : names)
        writeFile(at("tree/" + name), name);
    // A folder where one file should land makes exactly that copy fail.
    const std::string target = other_device + "/tree";
    fs::create_directories(target + "/blocked");

    EXPECT_EQ(FSRename(at("tree"), target, false), -3);
    EXPECT_TRUE(fs::is_directory(at("tree")));
    EXPECT_EQ(readFile(at("tree/blocked")), "blocked");
    // Whatever the walk order, every file is in exactly one place, intact.
    for (const std::string& name : names) {
        if (name == "blocked")
            continue;
        const bool moved = fs::exists(target + "/" + name);
        EXPECT_NE(moved, fs::exists(at("tree/" + name))) << name;
        EXPECT_EQ(readFile(moved ? target + "/" + name : at("tree/" + name)), name);
    }
}

TEST_F(FileOpTest, CopyReportsFullDeviceAndKeepsTargetPermissions) {
    writeFile(at("src"), std::string(100000, 'z'));
    EXPECT_EQ(FSCopy(at("src"), "/dev/full", true), -2);
    EXPECT_TRUE(fs::exists(at("src")));  // a failed copy never removes its source

    EXPECT_EQ(FSCopy(at("missing"), at("dst"), false), -1);
    EXPECT_FALSE(fs::exists(at("dst")));
    EXPECT_EQ(FSCopy(at("src"), at("no-such-folder/dst"), false), -1);

    writeFile(at("dst"), std::string(200000, 'o'));
    ASSERT_EQ(chmod(at("dst").c_str(), 0600), 0);
    ASSERT_EQ(FSCopy(at("src"), at("dst"), false), 0);
    EXPECT_EQ(readFile(at("dst")), std::string(100000, 'z'));
    EXPECT_EQ(permissions(at("dst")), 0600u);
    EXPECT_TRUE(fs::exists(at("src")));
}

TEST_F(FileOpTest, MakeFoldersStopsAtFilesInTheWay) {
    fs::create_directories(at("a"));
    writeFile(at("a/b"), "file");
    const ustring through_file(at("a/b/c"));
    char* stop_at = nullptr;
    errno = 0;
    EXPECT_EQ(FSMKDirP(through_file, &stop_at, false, 0755), -1);
    EXPECT_EQ(errno, ENOTDIR);
    ASSERT_NE(stop_at, nullptr);
    EXPECT_EQ(std::string(stop_at), "/c");

    const ustring onto_file(at("a/b"));
    errno = 0;
    EXPECT_EQ(FSMKDirP(onto_file, &stop_at, false, 0755), -1);
    EXPECT_EQ(errno, EEXIST);
    EXPECT_EQ(*stop_at, '\0');
    EXPECT_EQ(readFile(at("a/b")), "file");

    EXPECT_EQ(FSMKDirP(through_file, &stop_at, true, 0755), 0);
    EXPECT_TRUE(fs::is_directory(at("a/b/c")));
    EXPECT_EQ(*stop_at, '\0');

    stop_at = nullptr;
    EXPECT_EQ(FSMKDirP("", &stop_at, false, 0755), -1);
    EXPECT_EQ(stop_at, nullptr);

    writeFile(at("plain"), "");
    EXPECT_EQ(FSMKDir(at("plain"), true), -1);
    EXPECT_EQ(FSMKDir(at("x/y"), false), -2);
}

TEST_F(FileOpTest, MakeFoldersHonoursExplicitModesAndRestoresUmask) {
    const mode_t saved = umask(022);
    EXPECT_EQ(FSMKDirP(at("default/inner/"), nullptr, false, 0xFFFF), 0);
    EXPECT_EQ(permissions(at("default")), 0755u);
    EXPECT_EQ(permissions(at("default/inner")), 0755u);

    // An explicit mode is applied as given, group write included.
    EXPECT_EQ(FSMKDirP(at("open/inner"), nullptr, false, 0775), 0);
    EXPECT_EQ(permissions(at("open")), 0775u);
    EXPECT_EQ(permissions(at("open/inner")), 0775u);
    EXPECT_EQ(umask(saved), 022u);
}

TEST_F(FileOpTest, RemoveDeletesTreeButNeverFollowsLinks) {
    fs::create_directories(at("outside/keep"));
    writeFile(at("outside/keep/file"), "keep");
    fs::create_directories(at("tree/sub/deeper"));
    writeFile(at("tree/top"), "");
    writeFile(at("tree/sub/deeper/leaf"), "");
    fs::create_directory_symlink(at("outside"), at("tree/sub/to-folder"));
    fs::create_symlink(at("outside/keep/file"), at("tree/to-file"));
    fs::create_symlink(at("nowhere"), at("tree/dangling"));

    EXPECT_EQ(FSRemove(at("tree"), false), 0);
    EXPECT_FALSE(fs::exists(fs::symlink_status(at("tree"))));
    EXPECT_EQ(readFile(at("outside/keep/file")), "keep");

    // A link given directly is removed itself.
    fs::create_directory_symlink(at("outside"), at("link"));
    EXPECT_EQ(FSRemove(at("link"), false), 0);
    EXPECT_TRUE(fs::is_directory(at("outside/keep")));

    EXPECT_EQ(FSRemove(at("missing"), false), 0);
}

TEST_F(FileOpTest, ExistenceTestsDifferInHowPathsAreSpelled) {
    fs::create_directories(at("dir"));
    writeFile(at("dir/file"), "");
    fs::create_symlink(at("dir/file"), at("link"));
    const std::string composed = "caf\xC3\xA9";     // é as one code point
    const std::string decomposed = "cafe\xCC\x81";  // e + combining acute
    writeFile(at(composed), "");
    writeFile(at("stored-" + decomposed), "");

    const struct {
        std::string path;
        bool loose;
        bool exact;
    } cases[] = {
        {at("dir/file"), true, true},
        {at("dir"), true, true},
        {at("link"), true, false},
        {at("dir/"), true, false},
        {root + "/./dir/file", true, false},
        {root + "/dir//file", true, false},
        {at("dir/../dir/file"), true, false},
        {at("missing"), false, false},
        {at(composed), true, true},
        {at(decomposed), true, true},
        {at("stored-" + decomposed), true, true},
        {at("stored-" + composed), false, false},
        {"", false, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(IsFileExist(c.path, false), c.loose) << c.path;
        EXPECT_EQ(IsFileExist(c.path, true), c.exact) << c.path;
    }
}

TEST_F(FileOpTest, FileInfoDescribesEntriesAndPlaceholders) {
    _FILE_INFO_tag info;
    const time_t before = time(nullptr);
    ASSERT_EQ(GetFileInfo(at("missing"), info), 0);
    EXPECT_FALSE(info.exists);
    EXPECT_EQ(info.type, FILE_TYPE_REGULAR);
    EXPECT_EQ(info.size, 0);
    EXPECT_GE(info.mtime, before);
    EXPECT_LE(info.mtime, time(nullptr));
    EXPECT_EQ(info.path, ustring(at("missing")));

    writeFile(at("file"), "12345");
    ASSERT_EQ(GetFileInfo(root + "/./file", info), 0);
    EXPECT_TRUE(info.exists);
    EXPECT_EQ(info.type, FILE_TYPE_REGULAR);
    EXPECT_EQ(info.size, 5);
    EXPECT_EQ(info.path, ustring(at("file")));

    fs::create_symlink(at("file"), at("link"));
    ASSERT_EQ(GetFileInfo(at("link"), info), 0);
    EXPECT_EQ(info.type, FILE_TYPE_SYMLINK);
    EXPECT_EQ(GetFileInfo(at("file/below"), info), -1);  // ENOTDIR, not ENOENT

    // FSStat on a missing file changes nothing but the existence flag.
    _FILE_INFO_tag kept;
    kept.exists = true;
    kept.size = 42;
    kept.path = "kept";
    _FILE_INFO_tag probed = kept;
    EXPECT_EQ(FSStat(at("missing"), probed, false), 0);
    EXPECT_FALSE(probed.exists);
    probed.exists = true;
    EXPECT_TRUE(probed == kept);
    EXPECT_EQ(FSStat("", probed, false), -1);
}

TEST_F(FileOpTest, DirectoryWalkListsEntriesWithAndWithoutInfo) {
    fs::create_directories(at("walk/sub"));
    writeFile(at("walk/file"), "1234567");
    struct stat file_stat;
    ASSERT_EQ(stat(at("walk/file").c_str(), &file_stat), 0);

    for (const int flags : {0, FS_DIR_WITH_INFO}) {
        DIR_HANDLE handle;
        ASSERT_EQ(FSOpenDir(at("walk"), flags, handle), 0);
        std::set<std::string> names;
        DIR_ENTRY entry;
        int status;
        while ((status = FSReadDir(handle, entry)) == 1) {
            names.insert(entry.name.c_str());
            if (entry.name == "file") {
                EXPECT_EQ(entry.type, FILE_TYPE_REGULAR);
                EXPECT_EQ(entry.size, flags ? 7 : 0);
                EXPECT_EQ(entry.mtime, flags ? file_stat.st_mtime : 0);
            } else if (entry.name == "sub") {
                EXPECT_EQ(entry.type, FILE_TYPE_DIRECTORY);
            }
        }
        EXPECT_EQ(status, 0);
        FSCloseDir(handle);
        EXPECT_EQ(handle.dir, nullptr);
        EXPECT_EQ(names, (std::set<std::string>{".", "..", "file", "sub"}));
    }

    DIR_HANDLE handle;
    EXPECT_EQ(FSOpenDir(at("missing"), 0, handle), -1);
    EXPECT_EQ(FSOpenDir(at("walk/file"), 0, handle), -1);
    EXPECT_EQ(handle.dir, nullptr);
}

TEST_F(FileOpTest, TemporaryNamesAndProbes) {
    ustring made;
    ASSERT_EQ(FSMktemp(root, made), 0);
    EXPECT_EQ(std::string(made.c_str()).rfind(root + "/", 0), 0u);
    EXPECT_EQ(permissions(made.c_str()), 0644u);
    EXPECT_EQ(fs::file_size(made.c_str()), 0u);
    EXPECT_EQ(FSMktemp(at("missing"), made), -1);

    ustring named;
    ASSERT_EQ(FSCreateTempPath(root, named), 0);
    EXPECT_EQ(fs::path(named.c_str()).parent_path(), fs::path(root));
    EXPECT_FALSE(fs::exists(named.c_str()));

    // A local disk is neither a network nor a FAT volume; a missing file is not locked.
    EXPECT_FALSE(isMountPoint(root));
    EXPECT_FALSE(IsMSDOS(root));
    EXPECT_FALSE(isMountPoint(at("missing")));
    EXPECT_FALSE(isFileLocked(at("missing"), R_OK));
}

}  // namespace
