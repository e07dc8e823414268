#ifndef ENTRY_GUARD_H
#define ENTRY_GUARD_H

#include <set>
#include <string>

struct archive_entry;

// Keeps an unpack inside its destination folder. It refuses special files
// (FIFOs, devices, sockets), symbolic links whose target is absolute or
// climbs out of the folder, and any entry or hard-link target that would be
// reached through a symbolic link the unpack itself made. Relative links
// inside the folder, as bundles' frameworks have, are let through.
class EntryGuard {
public:
    // Empty when the entry may be written; otherwise why it may not. Judges
    // the entry by its name in the archive, before that is rewritten.
    std::string Refusal(archive_entry* entry);

private:
    std::string LinkOnTheWay(const std::string& path, bool to_the_end) const;

    std::set<std::string> symbolic_links;  // names, without "./" or doubled "/"
};

#endif  // ENTRY_GUARD_H
