#include "test-archive.h"

#include <archive.h>
#include <archive_entry.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <memory>

namespace {

struct WriterFree {
    void operator()(archive* writer) const { archive_write_free(writer); }
};

la_ssize_t AppendToString(archive*, void* sink, const void* buffer, size_t size)
{
    static_cast<std::string*>(sink)->append(static_cast<const char*>(buffer), size);
    return static_cast<la_ssize_t>(size);
}

bool WriteEntry(archive* writer, const TestEntry& item)
{
    std::unique_ptr<archive_entry, decltype(&archive_entry_free)> entry(archive_entry_new(),
                                                                       archive_entry_free);
    archive_entry_set_pathname(entry.get(), item.name.c_str());
    archive_entry_set_filetype(entry.get(), item.folder ? AE_IFDIR : AE_IFREG);
    archive_entry_set_perm(entry.get(), item.folder ? 0755 : 0644);
    archive_entry_set_size(entry.get(), item.folder ? 0 : item.content.size());
    if (archive_write_header(writer, entry.get()) != ARCHIVE_OK)
        return false;
    if (item.folder || item.content.empty())
        return true;
    const la_ssize_t written = archive_write_data(writer, item.content.data(), item.content.size());
    return written == static_cast<la_ssize_t>(item.content.size());
}

}  // namespace

std::string MakeArchive(int format, int filter, const std::vector<TestEntry>& entries)
{
    std::string bytes;
    std::unique_ptr<archive, WriterFree> writer(archive_write_new());
    if (archive_write_set_format(writer.get(), format) != ARCHIVE_OK ||
        archive_write_add_filter(writer.get(), filter) != ARCHIVE_OK ||
        // No zero padding after the data: the zstd reader takes it for a frame.
        archive_write_set_bytes_in_last_block(writer.get(), 1) != ARCHIVE_OK ||
        archive_write_open(writer.get(), &bytes, nullptr, AppendToString, nullptr) != ARCHIVE_OK)
        return std::string();
    for (const TestEntry& item : entries) {
        if (!WriteEntry(writer.get(), item))
            return std::string();
    }
    if (archive_write_close(writer.get()) != ARCHIVE_OK)
        return std::string();
    return bytes;
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
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly))
        return false;
    return file.write(bytes.data(), static_cast<qint64>(bytes.size())) ==
           static_cast<qint64>(bytes.size());
}

std::string ReadBytes(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::string();
    return file.readAll().toStdString();
}
