#include "file-op.h"
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace fs = std::filesystem;

// A fresh folder, spelled canonically so exact lookups can pass.
static std::string makeTempFolder(const std::string& parent)
{
    std::string pattern = parent + "/file-op-test-XXXXXX";
    char canonical[PATH_MAX];
    return mkdtemp(pattern.data()) && realpath(pattern.c_str(), canonical) ? canonical : std::string();
}
static void writeFile(const std::string& path, const std::string& content) { std::ofstream(path, std::ios::binary) << content; }
static std::string readFile(const std::string& path)
{
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

class FileOpTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_FALSE((root = makeTempFolder(fs::temp_directory_path().string())).empty());
        setenv("HOME", root.c_str(), 1);
    }
    void TearDown() override  // remove_all removes links as links
    {
        std::error_code ignored;
        fs::remove_all(root, ignored);
        fs::remove_all(other_device, ignored);
    }
    std::string at(const std::string& relative) const { return root + "/" + relative; }
    std::string root, other_device;
};

TEST_F(FileOpTest, RenameAcrossFileSystemsFallsBackToCopyForFilesAndTrees)
{
    other_device = makeTempFolder("/dev/shm");
    struct stat a, b;
    if (other_device.empty() || stat(root.c_str(), &a) != 0 || stat(other_device.c_str(), &b) != 0 || a.st_dev == b.st_dev)
        GTEST_SKIP() << "no second file system next to " << root;
    fs::create_directories(at("tree/sub/deeper"));
    for (const char* file : {"top", "tree/a", "tree/sub/b", "tree/sub/deeper/c"})
        writeFile(at(file), file);
    for (const char* name : {"top", "tree"})
        ASSERT_EQ(FSRename(at(name), other_device + "/" + name, false), 0) << name;
    for (const char* file : {"top", "tree/a", "tree/sub/b", "tree/sub/deeper/c"})
        EXPECT_EQ(readFile(other_device + "/" + file), file);
    EXPECT_FALSE(fs::exists(at("tree")) || fs::exists(at("top")));
}

TEST_F(FileOpTest, CopyReportsAFullDevice)
{
    writeFile(at("src"), std::string(100000, 'z'));
    EXPECT_EQ(FSCopy(at("src"), "/dev/full", true), -2);
    EXPECT_TRUE(fs::exists(at("src")));  // a failed copy never removes its source
}

TEST_F(FileOpTest, MakeFoldersStopsAtFilesInTheWayAndHonoursModes)
{
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
    EXPECT_EQ(FSMKDirP(through_file, &stop_at, true, 0755), 0);  // a file in the way may be replaced
    EXPECT_TRUE(fs::is_directory(at("a/b/c")));
    const mode_t saved = umask(022);
    EXPECT_EQ(FSMKDirP(at("default/inner/"), nullptr, false, 0xFFFF), 0);
    EXPECT_EQ(FSMKDirP(at("open/inner"), nullptr, false, 0775), 0);
    for (const char* folder : {"default", "default/inner", "open", "open/inner"})
        EXPECT_EQ(static_cast<unsigned>(fs::status(at(folder)).permissions()), folder[0] == 'd' ? 0755u : 0775u) << folder;
    EXPECT_EQ(umask(saved), 022u);
}

TEST_F(FileOpTest, RemoveDeletesTreeButNeverFollowsLinks)
{
    fs::create_directories(at("outside/keep"));
    writeFile(at("outside/keep/file"), "keep");
    fs::create_directories(at("tree/sub"));
    fs::create_directory_symlink(at("outside"), at("tree/sub/to-folder"));
    fs::create_symlink(at("outside/keep/file"), at("tree/to-file"));
    EXPECT_EQ(FSRemove(at("tree"), false), 0);
    EXPECT_FALSE(fs::exists(fs::symlink_status(at("tree"))));
    EXPECT_EQ(readFile(at("outside/keep/file")), "keep");
}

TEST_F(FileOpTest, ExistenceTestsDifferInHowPathsAreSpelled)
{
    fs::create_directories(at("dir"));
    writeFile(at("dir/file"), "");
    fs::create_symlink(at("dir/file"), at("link"));
    const std::string composed = "caf\xC3\xA9", decomposed = "cafe\xCC\x81";  // e-acute: one code point, or e + accent
    writeFile(at(composed), "");
    writeFile(at("stored-" + decomposed), "");
    const struct { std::string path; bool loose, exact; } cases[] = {
        {at("dir/file"), true, true}, {at("link"), true, false}, {at("dir/"), true, false},
        {root + "/./dir/file", true, false}, {root + "/dir//file", true, false}, {at("dir/../dir/file"), true, false},
        {at("missing"), false, false}, {at(decomposed), true, true}, {at("stored-" + decomposed), true, true},
        {at("stored-" + composed), false, false}, {"", false, false}};
    for (const auto& c : cases) {
        EXPECT_EQ(IsFileExist(c.path, false), c.loose) << c.path;
        EXPECT_EQ(IsFileExist(c.path, true), c.exact) << c.path;
    }
}
