#ifndef TREE_SNAPSHOT_H
#define TREE_SNAPSHOT_H

#include <QString>

#include <map>
#include <string>

// Relative path -> "d" for a folder, "l:" + target for a symbolic link,
// "f:" + content for a file. Two snapshots are equal when names, types,
// sizes and contents all match.
using TreeSnapshot = std::map<std::string, std::string>;

// What a folder holds; symbolic links are recorded, not followed.
TreeSnapshot SnapshotOfFolder(const QString& folder);

// What unpacking an archive should produce: names without "./" and trailing
// "/", folders implied by deeper names included. Empty if unreadable.
TreeSnapshot SnapshotOfArchive(const QString& archive_path);

// A readable account of the first differences, empty when equal.
std::string DescribeDifferences(const TreeSnapshot& expected, const TreeSnapshot& actual);

#endif  // TREE_SNAPSHOT_H
