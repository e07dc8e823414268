#include "tree-snapshot.h"

#include <archive.h>
#include <archive_entry.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <memory>

namespace {

const char kFolder[] = "d";
const size_t kMaxReported = 5;

struct ReaderFree {
    void operator()(archive* reader) const { archive_read_free(reader); }
};

std::string Normalised(std::string name)
{
    while (name.compare(0, 2, "./") == 0)
        name.erase(0, 2);
    while (!name.empty() && name.back() == '/')
        name.pop_back();
    return name;
}

void AddParents(TreeSnapshot& tree, const std::string& name)
{
    for (size_t slash = name.find('/'); slash != std::string::npos; slash = name.find('/', slash + 1))
        tree.emplace(name.substr(0, slash), kFolder);
}

bool ReadData(archive* reader, std::string& content)
{
    char buffer[16384];
    la_ssize_t got;
    while ((got = archive_read_data(reader, buffer, sizeof buffer)) > 0)
        content.append(buffer, static_cast<size_t>(got));
    return got == 0;
}

}  // namespace

TreeSnapshot SnapshotOfFolder(const QString& folder)
{
    TreeSnapshot tree;
    const QDir root(folder);
    QDirIterator it(folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const QFileInfo info = it.fileInfo();
        const std::string name = root.relativeFilePath(path).toStdString();
        if (info.isSymLink()) {
            tree[name] = "l:" + info.symLinkTarget().toStdString();
        } else if (info.isDir()) {
            tree[name] = kFolder;
        } else {
            QFile file(path);
            tree[name] = file.open(QIODevice::ReadOnly) ? "f:" + file.readAll().toStdString() : "unreadable";
        }
    }
    return tree;
}

TreeSnapshot SnapshotOfArchive(const QString& archive_path)
{
    TreeSnapshot tree;
    std::unique_ptr<archive, ReaderFree> reader(archive_read_new());
    if (!reader || archive_read_support_filter_all(reader.get()) != ARCHIVE_OK ||
        archive_read_support_format_all(reader.get()) != ARCHIVE_OK ||
        archive_read_open_filename(reader.get(), archive_path.toUtf8().constData(), 10240) != ARCHIVE_OK)
        return {};
    archive_entry* entry = nullptr;
    int status;
    while ((status = archive_read_next_header(reader.get(), &entry)) == ARCHIVE_OK) {
        const std::string name = Normalised(archive_entry_pathname(entry));
        AddParents(tree, name);
        switch (archive_entry_filetype(entry)) {
        case AE_IFDIR:
            tree[name] = kFolder;
            break;
        case AE_IFLNK:
            tree[name] = std::string("l:") + archive_entry_symlink(entry);
            break;
        default:
            if (!ReadData(reader.get(), tree[name] = "f:"))
                return {};
        }
    }
    return status == ARCHIVE_EOF ? tree : TreeSnapshot();
}

std::string DescribeDifferences(const TreeSnapshot& expected, const TreeSnapshot& actual)
{
    std::string report;
    size_t reported = 0;
    const auto note = [&](const char* what, const std::string& name) {
        if (reported++ < kMaxReported)
            report += what + name + "\n";
    };
    for (const auto& [name, value] : expected) {
        const auto found = actual.find(name);
        if (found == actual.end())
            note("missing: ", name);
        else if (found->second != value)
            note("differs: ", name);
    }
    for (const auto& item : actual)
        if (expected.count(item.first) == 0)
            note("extra: ", item.first);
    if (reported > kMaxReported)
        report += std::to_string(reported - kMaxReported) + " more\n";
    return report;
}
