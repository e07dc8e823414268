#ifndef ENTRY_GUARD_H
#define ENTRY_GUARD_H

#include <map>
#include <set>
#include <string>

// A symbolic link's name, without "./" or doubled "/", to its target as the
// archive has it.
using LinkTargets = std::map<std::string, std::string>;

struct archive_entry;

// Keeps an unpack inside its destination folder. It refuses special files
// (FIFOs, devices, sockets), any entry or hard-link target that would be
// reached through a symbolic link the unpack itself made, and any symbolic
// link that would lead out of the folder: judged by where it resolves,
// through the links made before it, and again whenever a later entry adds
// or replaces a link on its way. Relative links inside the folder, as
// bundles' frameworks have, are let through.
class EntryGuard {
public:
    // Empty when the entry may be written; otherwise why it may not. Judges
    // the entry by its name in the archive, before that is rewritten.
    std::string Refusal(archive_entry* entry);

private:
    std::string LinkOnTheWay(const std::string& path, bool to_the_end) const;
    bool StaysInside(const std::string& link);

    LinkTargets symbolic_links;                            // the links the unpack made
    std::map<std::string, std::set<std::string>> walkers;  // a path to the links whose walk passed it
};

#endif  // ENTRY_GUARD_H
