#include "entry-guard.h"

#include <archive_entry.h>

#include <deque>
#include <sstream>
#include <vector>

namespace {

// As the kernel's limit: a longer chain is a loop or meant to mislead.
const int kMostLinksFollowed = 40;

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

// Puts the components of a link's target ahead of the rest of the path;
// false when the target leads out whatever follows it.
bool Expand(const std::string& target, std::deque<std::string>& ahead, int& followed)
{
    if (target.empty() || target[0] == '/' || ++followed > kMostLinksFollowed)
        return false;
    const std::vector<std::string> parts = Components(target);
    ahead.insert(ahead.begin(), parts.begin(), parts.end());
    return true;
}

// Whether the link at name stays below the destination when followed
// through the links: each link met on the way is read from its own folder,
// as the kernel reads it, and a loop leads out. walked receives every path
// the walk looked up, the only places where another link could change it.
bool ResolvesInside(const LinkTargets& links, const std::string& name, const std::string& target,
                    std::vector<std::string>& walked)
{
    std::vector<std::string> folder = Components(name);
    std::deque<std::string> ahead;
    int followed = 0;
    if (folder.empty() || !Expand(target, ahead, followed))
        return false;
    folder.pop_back();
    while (!ahead.empty()) {
        const std::string part = ahead.front();
        ahead.pop_front();
        if (part == "..") {
            if (folder.empty())
                return false;
            folder.pop_back();
            continue;
        }
        folder.push_back(part);
        walked.push_back(Joined(folder, folder.size()));
        const auto link = links.find(walked.back());
        if (link == links.end())
            continue;
        folder.pop_back();
        if (!Expand(link->second, ahead, followed))
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
    // Most packages hold no link at all, and then no entry needs its key.
    if (!is_symbolic_link && symbolic_links.empty())
        return std::string();
    const std::vector<std::string> parts = Components(name);
    const std::string key = Joined(parts, parts.size());
    if (!is_symbolic_link && symbolic_links.count(key) == 0)
        return std::string();

    // The writer replaces whatever the name held. That changes where the
    // links lead whose walk passed the name, and only those: judging just
    // them keeps a package of many links from costing the square of their
    // number. A refusal ends the unpack, so nothing needs to be undone.
    std::set<std::string> affected;
    affected.swap(walkers[key]);
    const char* target = archive_entry_symlink(entry);
    if (is_symbolic_link) {
        symbolic_links[key] = target != nullptr ? target : "";
        affected.insert(key);
    } else {
        symbolic_links.erase(key);
    }
    for (const std::string& link : affected) {
        if (symbolic_links.count(link) != 0 && !StaysInside(link))
            return "a symbolic link would lead out of the folder";
    }
    return std::string();
}

// Notes the paths the link's walk passed, so that a change at one of them
// judges it again.
bool EntryGuard::StaysInside(const std::string& link)
{
    std::vector<std::string> walked;
    const bool inside = ResolvesInside(symbolic_links, link, symbolic_links.at(link), walked);
    for (const std::string& path : walked)
        walkers[path].insert(link);
    return inside;
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
