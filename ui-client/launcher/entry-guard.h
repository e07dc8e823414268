#ifndef ENTRY_GUARD_H
#define ENTRY_GUARD_H

#include <map>
#include <string>

// A symbolic link's name, without "./" or doubled "/", to its target as the
// archive has it.
using LinkTargets = std::map<std::string, std::string>;

struct archive_entry;

// Keeps an unpack inside its destination folder. It refuses special files
// (FIFOs, devices, sockets), any entry or hard-link target that would be
// reached through a symbolic link the unpack itself made, and any symbolic
// link that would lead out of the folder: judged by where it resolves,
// through the links made before it, and again for every link whenever a
// later entry adds or replaces one. Relative links inside the folder, as
// bundles' frameworks have, are let through.
class EntryGuard {
public:
    // Empty when the entry may be written; otherwise why it may not. Judges
    // the entry by its name in the archive, before that is rewritten.
    std::string Refusal(archive_entry* entry);

private:
    std::string LinkOnTheWay(const std::string& path, bool to_the_end) const;

    LinkTargets symbolic_links;  // the links the unpack made
};

#endif  // ENTRY_GUARD_H
