#ifndef UPGRADE_TRANSACTION_H
#define UPGRADE_TRANSACTION_H

#include "ustring.h"

// Replaces the per-user bundle in one step that nothing can see half done:
// whatever stops a run, and in whatever order the package holds its files,
// the bundle is the complete old installation or the complete new one. It
// is never written in place. The package is unpacked into a staging folder
// beside it, synced, and then takes the bundle's place in one atomic
// exchange. Each state shows on disk by its names, and Settle, run before
// anything else is decided, tells what to do with it:
//
//   state       Drovia.app    Drovia.app_new      Drovia.app_tmp*   Settle
//   installed   complete      -                   -                 -
//   unpacking   old, or none  part of the package -                 removes the staging folder
//   committed   new           the old tree        -                 removes the staging folder
//
// Where the file system cannot exchange two folders, the commit is two
// renames through a backup name instead:
//
//   backup taken  -           the whole package   old               removes the staging folder,
//                                                                   puts the backup back
//   committed     new         -                   old               removes the backup
//
// The bundle, whenever it exists, is therefore complete; a backup is only
// ever put back where no bundle is.
class UpgradeTransaction {
public:
    explicit UpgradeTransaction(const ustring& app);

    // Where the package is unpacked for the bundle at app.
    static ustring StagingFolder(const ustring& app);

    // Finishes or undoes what an earlier run left (see above).
    void Settle();
    // Clears the staging folder for a new package: 0, or -1 when a leftover
    // cannot be removed and would mix with the package.
    int Begin();
    // Makes the unpacked staging folder the bundle once it is durable, and
    // the exchange durable in turn. 0, or -1 with the bundle as it was.
    int Commit();
    // Removes the staging folder of a package that failed to unpack.
    void Abandon();

private:
    int Exchange();
    int ExchangeThroughBackup();
    void PutBackupBack(const ustring& backup);
    void Remove(const ustring& path);

    ustring app;
    ustring staging;
    ustring folder;  // that holds both: its names must be durable too
};

#endif  // UPGRADE_TRANSACTION_H
