#include "file-op.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
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
    char canonical[PATH_MAX];
    return mkdtemp(pattern.data()) && realpath(pattern.c_str(), canonical) ? canonical : std::string();
}

void writeFile(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

std::string readFile(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
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
        struct stat a, b;
        if (other_device.empty() || stat(root.c_str(), &a) != 0 || stat(other_device.c_str(), &b) != 0 ||
            a.st_dev == b.st_dev)
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
    EXPECT_EQ(FSRename(root + "/./f", at("g"), true), -2);  // exact lookups refuse a "." component
    EXPECT_EQ(FSRename(at("f"), at(std::string(NAME_MAX + 1, 'n')), false), -100);
    EXPECT_EQ(FSRename(at("f"), at("no-such-folder/g"), false), -3);
    EXPECT_EQ(FSRename(at("f"), at("g"), false), 0);
    EXPECT_EQ(readFile(at("g")), "x");
}

TEST_F(FileOpTest, RenameAcrossFileSystemsMovesFilesTreesButNotLinks) {
    useOtherDevice();
    if (IsSkipped())
        return;
    fs::create_directories(at("tree/sub/deeper"));
    for (const char* file : {"top", "tree/a", "tree/sub/b", "tree/sub/deeper/c"})
        writeFile(at(file), file);
    fs::create_directory_symlink(other_device, at("link"));
    for (const char* name : {"top", "tree", "link"})
        ASSERT_EQ(FSRename(at(name), other_device + "/" + name, false), 0) << name;
    for (const char* file : {"top", "tree/a", "tree/sub/b", "tree/sub/deeper/c"})
        EXPECT_EQ(readFile(other_device + "/" + file), file);
    EXPECT_FALSE(fs::exists(at("tree")));
    // A link cannot be carried over by copying; it stays, and that is no error.
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
    EXPECT_EQ(readFile(at("tree/blocked")), "blocked");
    // Whatever the walk order, every file is in exactly one place, intact.
    for (const std::string& name : names) {
        const bool moved = name != "blocked" && fs::exists(target + "/" + name);
        EXPECT_NE(moved, fs::exists(at("tree/" + name))) << name;
        EXPECT_EQ(readFile(moved ? target + "/" + name : at("tree/" + name)), name);
    }
}

TEST_F(FileOpTest, CopyReportsFullDeviceAndKeepsTargetPermissions) {
    writeFile(at("src"), std::string(100000, 'z'));
    EXPECT_EQ(FSCopy(at("src"), "/dev/full", true), -2);
    EXPECT_TRUE(fs::exists(at("src")));  // a failed copy never removes its source

    writeFile(at("dst"), std::string(200000, 'o'));
    ASSERT_EQ(chmod(at("dst").c_str(), 0600), 0);
    ASSERT_EQ(FSCopy(at("src"), at("dst"), false), 0);
    EXPECT_EQ(readFile(at("dst")), std::string(100000, 'z'));
    EXPECT_EQ(permissions(at("dst")), 0600u);
}

TEST_F(FileOpTest, MakeFoldersStopsAtFilesInTheWay) {
    fs::create_directories(at("a"));
    writeFile(at("a/b"), "file");
    const ustring through_file(at("a/b/c")), onto_file(at("a/b"));  // stop_at points into these
    char* stop_at = nullptr;
    EXPECT_EQ(FSMKDirP(through_file, &stop_at, false, 0755), -1);
    EXPECT_EQ(errno, ENOTDIR);
    EXPECT_STREQ(stop_at, "/c");
    EXPECT_EQ(FSMKDirP(onto_file, &stop_at, false, 0755), -1);
    EXPECT_EQ(errno, EEXIST);
    EXPECT_STREQ(stop_at, "");
    EXPECT_EQ(FSMKDirP(through_file, &stop_at, true, 0755), 0);
    EXPECT_STREQ(stop_at, "");
    EXPECT_TRUE(fs::is_directory(at("a/b/c")));

    EXPECT_EQ(FSMKDir(at("x/y"), false), -2);
    EXPECT_EQ(FSMKDir(through_file, true), 0);
    writeFile(at("plain"), "");
    EXPECT_EQ(FSMKDir(at("plain"), true), -1);
}

TEST_F(FileOpTest, MakeFoldersHonoursExplicitModesAndRestoresUmask) {
    const mode_t saved = umask(022);
    EXPECT_EQ(FSMKDirP(at("default/inner/"), nullptr, false, 0xFFFF), 0);
    EXPECT_EQ(FSMKDirP(at("open/inner"), nullptr, false, 0775), 0);
    for (const auto& [folder, mode] : {std::pair{"default", 0755u}, {"default/inner", 0755u}, {"open", 0775u},
                                       {"open/inner", 0775u}})
        EXPECT_EQ(permissions(at(folder)), mode) << folder;
    EXPECT_EQ(umask(saved), 022u);
}

TEST_F(FileOpTest, RemoveDeletesTreeButNeverFollowsLinks) {
    fs::create_directories(at("outside/keep"));
    writeFile(at("outside/keep/file"), "keep");
    fs::create_directories(at("tree/sub/deeper"));
    writeFile(at("tree/sub/deeper/leaf"), "");
    fs::create_directory_symlink(at("outside"), at("tree/sub/to-folder"));
    fs::create_symlink(at("outside/keep/file"), at("tree/to-file"));
    fs::create_symlink(at("nowhere"), at("tree/dangling"));
    fs::create_directory_symlink(at("outside"), at("link"));

    EXPECT_EQ(FSRemove(at("tree"), false), 0);
    EXPECT_EQ(FSRemove(at("link"), false), 0);
    EXPECT_EQ(FSRemove(at("missing"), false), 0);
    EXPECT_FALSE(fs::exists(fs::symlink_status(at("tree"))));
    EXPECT_FALSE(fs::exists(fs::symlink_status(at("link"))));
    EXPECT_EQ(readFile(at("outside/keep/file")), "keep");
}

TEST_F(FileOpTest, ExistenceTestsDifferInHowPathsAreSpelled) {
    fs::create_directories(at("dir"));
    writeFile(at("dir/file"), "");
    fs::create_symlink(at("dir/file"), at("link"));
    const std::string composed = "caf\xC3\xA9";     // e-acute as one code point
    const std::string decomposed = "cafe\xCC\x81";  // e + combining acute
    writeFile(at(composed), "");
    writeFile(at("stored-" + decomposed), "");

    const struct {
        std::string path;
        bool loose, exact;
    } cases[] = {
        {at("dir/file"), true, true},          {at("link"), true, false},
        {at("dir/"), true, false},             {root + "/./dir/file", true, false},
        {root + "/dir//file", true, false},    {at("dir/../dir/file"), true, false},
        {at("missing"), false, false},         {at(decomposed), true, true},
        {at("stored-" + decomposed), true, true}, {at("stored-" + composed), false, false},
        {"", false, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.path);
        EXPECT_EQ(IsFileExist(c.path, false), c.loose);
        EXPECT_EQ(IsFileExist(c.path, true), c.exact);
    }
}

}  // namespace
