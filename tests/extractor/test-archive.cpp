#include "test-archive.h"

#include <archive.h>
#include <archive_entry.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <memory>

QString LogCapture::path;

std::string MakeArchive(int format, int filter, const std::vector<TestEntry>& entries)
{
    std::string bytes;
    const auto append = [](archive*, void* sink, const void* data, size_t size) -> la_ssize_t {
        static_cast<std::string*>(sink)->append(static_cast<const char*>(data), size);
        return static_cast<la_ssize_t>(size);
    };
    std::unique_ptr<archive, decltype(&archive_write_free)> writer(archive_write_new(),
                                                                   archive_write_free);
    std::unique_ptr<archive_entry, decltype(&archive_entry_free)> entry(archive_entry_new(),
                                                                       archive_entry_free);
    bool ok = archive_write_set_format(writer.get(), format) == ARCHIVE_OK &&
              archive_write_add_filter(writer.get(), filter) == ARCHIVE_OK &&
              // No zero padding after the data: the zstd reader takes it for a frame.
              archive_write_set_bytes_in_last_block(writer.get(), 1) == ARCHIVE_OK &&
              archive_write_open(writer.get(), &bytes, nullptr, append, nullptr) == ARCHIVE_OK;
    for (auto item = entries.begin(); ok && item != entries.end(); ++item) {
        archive_entry_clear(entry.get());
        archive_entry_set_pathname(entry.get(), item->name.c_str());
        archive_entry_set_mode(entry.get(), item->folder ? AE_IFDIR | 0755 : AE_IFREG | 0644);
        const size_t size = item->folder ? 0 : item->content.size();
        archive_entry_set_size(entry.get(), static_cast<la_int64_t>(size));
        ok = archive_write_header(writer.get(), entry.get()) == ARCHIVE_OK &&
             (size == 0 || archive_write_data(writer.get(), item->content.data(), size) ==
                               static_cast<la_ssize_t>(size));
    }
    return ok && archive_write_close(writer.get()) == ARCHIVE_OK ? bytes : std::string();
}

std::string MakeDamagedTar(const std::vector<TestEntry>& entries, size_t index)
{
    std::string bytes = MakeArchive(ARCHIVE_FORMAT_TAR_USTAR, ARCHIVE_FILTER_NONE, entries);
    // A ustar header starts with the entry's name; changing it breaks the checksum.
    const size_t header = bytes.find(entries.at(index).name);
    if (header != std::string::npos)
        bytes[header] ^= 0x20;
    return bytes;
}

bool WriteBytes(const QString& path, const std::string& bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes.data(), static_cast<qint64>(bytes.size())) ==
               static_cast<qint64>(bytes.size());
}

std::string ReadBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

std::string LogCapture::Text() const
{
    const std::string text = ReadBytes(path);
    return start < text.size() ? text.substr(start) : std::string();
}
