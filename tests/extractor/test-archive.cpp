#include "test-archive.h"
#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <cstdlib>
#include "log.h"
#include "strtable.h"

QString LogCapture::path;

std::string MakeArchive(int format, int filter, const std::vector<TestEntry>& entries)
{
    std::string bytes;
    const auto append = [](archive*, void* sink, const void* data, size_t size) -> la_ssize_t {
        static_cast<std::string*>(sink)->append(static_cast<const char*>(data), size);
        return static_cast<la_ssize_t>(size);
    };
    archive* writer = archive_write_new();
    archive_entry* entry = archive_entry_new();
    // No zero padding after the data: the zstd reader takes it for a frame.
    bool ok = archive_write_set_format(writer, format) == ARCHIVE_OK &&
              archive_write_add_filter(writer, filter) == ARCHIVE_OK &&
              archive_write_set_bytes_in_last_block(writer, 1) == ARCHIVE_OK &&
              archive_write_open(writer, &bytes, nullptr, append, nullptr) == ARCHIVE_OK;
    for (const TestEntry& item : entries) {
        const size_t size = item.content.size();
        archive_entry_clear(entry);
        archive_entry_set_pathname(entry, item.name.c_str());
        archive_entry_set_mode(entry, item.folder ? AE_IFDIR | 0755 : AE_IFREG | 0644);
        archive_entry_set_size(entry, static_cast<la_int64_t>(size));
        ok = ok && archive_write_header(writer, entry) == ARCHIVE_OK &&
             archive_write_data(writer, item.content.data(), size) == static_cast<la_ssize_t>(size);
    }
    ok = ok && archive_write_close(writer) == ARCHIVE_OK;
    archive_entry_free(entry);
    archive_write_free(writer);
    return ok ? bytes : std::string();
}

bool WriteBytes(const QString& path, const std::string& bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes.data(), static_cast<qint64>(bytes.size())) == qint64(bytes.size());
}

std::string ReadBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

// Replaces gtest's main. The toolkit reads HOME, so it points into a scratch folder
// before the application object exists; tests never see the real home folder.
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    QTemporaryDir scratch;
    LogCapture::path = scratch.path() + "/test.log";
    const QString levels = scratch.path() + "/levels";
    if (setenv("HOME", scratch.path().toUtf8().constData(), 1) != 0 ||
        !WriteBytes(levels, "service_debug=7\nextractor_debug=7\n") ||
        Logger::Initialize(Logger::TYPE_FILE, LogCapture::path.toUtf8().constData(),
                           levels.toUtf8().constData(), 50) != 0)
        return 1;
    QCoreApplication application(argc, argv);
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}
