#include "file-op.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cerrno>

#include "files.h"

namespace {

class FileOpTest : public ::testing::Test {
protected:
    // Spelled canonically, so that exact lookups can pass.
    ustring At(const QString& relative) const { return qPrintable(root + "/" + relative); }
    bool Exists(const QString& relative) const { return QFileInfo::exists(root + "/" + relative); }
    void Write(const QString& relative, const std::string& content)
    {
        ASSERT_TRUE(WriteBytes(root + "/" + relative, content));
    }

    QTemporaryDir scratch;
    const QString root = QFileInfo(scratch.path()).canonicalFilePath();
};

TEST_F(FileOpTest, EachFailureHasItsOwnCode)
{
    Write("src", std::string(100000, 'z'));
    EXPECT_EQ(FSCopy(At("src"), "/dev/full", true), FS_DEVICE_FULL);
    EXPECT_TRUE(Exists("src")) << "a failed copy never removes its source";
    EXPECT_EQ(FSRename(At("missing"), At("to"), false), FS_SOURCE_MISSING);
    EXPECT_EQ(FSRename(At("src"), At(QString(300, 'n')), false), FS_NAME_TOO_LONG);
    EXPECT_EQ(FSRename(At("src"), At("missing/to"), false), FS_STEP_FAILED);
    EXPECT_EQ(FSMKDir(At("src"), true), FS_ERROR) << "a file in the way";
    EXPECT_EQ(FSMKDir(At("missing/sub"), false), FS_NOT_CREATED);
}

TEST_F(FileOpTest, MakeFoldersStopsAtFilesInTheWayAndHonoursModes)
{
    Write("a/b", "file");
    const ustring through_file = At("a/b/c");  // stop_at points into these
    const ustring onto_file = At("a/b");
    char* stop_at = nullptr;
    EXPECT_EQ(FSMKDirP(through_file, &stop_at, false, 0755), -1);
    EXPECT_EQ(errno, ENOTDIR);
    EXPECT_STREQ(stop_at, "/c");
    EXPECT_EQ(FSMKDirP(onto_file, &stop_at, false, 0755), -1);
    EXPECT_EQ(errno, EEXIST);
    EXPECT_STREQ(stop_at, "");
    EXPECT_EQ(FSMKDirP(through_file, &stop_at, true, 0755), 0) << "a file in the way may be replaced";
    EXPECT_TRUE(QFileInfo(root + "/a/b/c").isDir());
    const mode_t saved = umask(022);
    EXPECT_EQ(FSMKDirP(At("default/inner/"), nullptr, false, 0xFFFF), 0);
    EXPECT_EQ(FSMKDirP(At("open/inner"), nullptr, false, 0775), 0);
    for (const char* folder : {"default", "default/inner", "open", "open/inner"}) {
        struct stat st = {};
        EXPECT_EQ(stat(At(folder).c_str(), &st), 0) << folder;
        EXPECT_EQ(st.st_mode & 0777, folder[0] == 'd' ? 0755u : 0775u) << folder;
    }
    EXPECT_EQ(umask(saved), 022u);
}

TEST_F(FileOpTest, RemoveDeletesTreeButNeverFollowsLinks)
{
    Write("outside/keep/file", "keep");
    ASSERT_TRUE(QDir().mkpath(root + "/tree/sub"));
    ASSERT_TRUE(QFile::link(root + "/outside", root + "/tree/sub/to-folder"));
    ASSERT_TRUE(QFile::link(root + "/outside/keep/file", root + "/tree/to-file"));
    EXPECT_EQ(FSRemove(At("tree"), false), 0);
    EXPECT_FALSE(Exists("tree"));
    EXPECT_EQ(ReadBytes(root + "/outside/keep/file"), "keep");
}

TEST_F(FileOpTest, ExistenceTestsDifferInHowPathsAreSpelled)
{
    const QString composed = QString::fromUtf8("caf\xC3\xA9");     // e-acute: one code point,
    const QString decomposed = QString::fromUtf8("cafe\xCC\x81");  // or e and an accent
    Write("dir/file", "");
    Write(composed, "");
    Write("stored-" + decomposed, "");
    ASSERT_TRUE(QFile::link(root + "/dir/file", root + "/link"));
    const struct {
        ustring path;
        bool loose;
        bool exact;
    } cases[] = {{At("dir/file"), true, true},
                 {At("link"), true, false},
                 {At("dir/"), true, false},
                 {At("./dir/file"), true, false},
                 {At("dir//file"), true, false},
                 {At("dir/../dir/file"), true, false},
                 {At("missing"), false, false},
                 {At(decomposed), true, true},
                 {At("stored-" + decomposed), true, true},
                 {At("stored-" + composed), false, false},
                 {"", false, false}};
    for (const auto& c : cases) {
        EXPECT_EQ(IsFileExist(c.path, false), c.loose) << c.path;
        EXPECT_EQ(IsFileExist(c.path, true), c.exact) << c.path;
    }
}

}  // namespace
