#include "entry-guard.h"

#include <archive_entry.h>

#include <sstream>
#include <vector>

namespace {

// The components of a name, without the empty ones of doubled or leading
// slashes and without ".": the name as it lands below the destination.
std::vector<std::string> Components(const std::string& name)
{
    std::vector<std::string> parts;
    std::istringstream stream(name);
    std::string part;
    while (std::getline(stream, part, '/')) {
        if (!part.empty() && part != ".")
            parts.push_back(part);
    }
    return parts;
}

// The first count components joined again: the key of a folder or file.
std::string Joined(const std::vector<std::string>& parts, size_t count)
{
    std::string key;
    for (size_t i = 0; i < count; ++i)
        key += (i == 0 ? "" : "/") + parts[i];
    return key;
}

// Whether target, read from the folder of the link at name, stays below the
// destination. Judged by the text alone: the links it passes are themselves
// checked, and nothing is ever written through one.
bool StaysInside(const std::string& name, const char* target)
{
    if (target == nullptr || target[0] == '\0' || target[0] == '/')
        return false;
    long depth = static_cast<long>(Components(name).size()) - 1;
    for (const std::string& part : Components(target)) {
        depth += part == ".." ? -1 : 1;
        if (depth < 0)
            return false;
    }
    return true;
}

// A hard link is a name for a file of the archive; its entry carries no type.
bool IsSpecialFile(archive_entry* entry)
{
    const mode_t type = archive_entry_filetype(entry);
    return archive_entry_hardlink(entry) == nullptr && type != AE_IFREG && type != AE_IFDIR &&
           type != AE_IFLNK;
}

}  // namespace

std::string EntryGuard::Refusal(archive_entry* entry)
{
    const std::string name = archive_entry_pathname(entry);
    if (IsSpecialFile(entry))
        return "not a file, folder or link";
    std::string link = LinkOnTheWay(name, false);
    if (!link.empty())
        return "it lies behind the symbolic link '" + link + "'";
    const char* hard_link_target = archive_entry_hardlink(entry);
    if (hard_link_target != nullptr && !(link = LinkOnTheWay(hard_link_target, true)).empty())
        return "its hard-link target lies behind the symbolic link '" + link + "'";
    const bool is_symbolic_link = archive_entry_filetype(entry) == AE_IFLNK;
    if (is_symbolic_link && !StaysInside(name, archive_entry_symlink(entry)))
        return "its link target leaves the folder";

    // The writer replaces whatever the name held, a link included. Most
    // packages hold no link at all, and then no entry needs its key.
    if (!is_symbolic_link && symbolic_links.empty())
        return std::string();
    const std::vector<std::string> parts = Components(name);
    const std::string key = Joined(parts, parts.size());
    if (is_symbolic_link)
        symbolic_links.insert(key);
    else
        symbolic_links.erase(key);
    return std::string();
}

// The first symbolic link made so far that the path passes through: one of
// its parent folders, or with to_the_end the path itself.
std::string EntryGuard::LinkOnTheWay(const std::string& path, bool to_the_end) const
{
    if (symbolic_links.empty())
        return std::string();
    const std::vector<std::string> parts = Components(path);
    const size_t last = to_the_end || parts.empty() ? parts.size() : parts.size() - 1;
    for (size_t count = 1; count <= last; ++count) {
        const std::string prefix = Joined(parts, count);
        if (symbolic_links.count(prefix) != 0)
            return prefix;
    }
    return std::string();
}
