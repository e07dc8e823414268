#include "upgrade-transaction.h"

#include <cstdio>

#include "file-op.h"
#include "install-layout.h"
#include "log.h"

#define LOG_COMPONENT "service_debug"
#define LOG_TAG "cloud-service"

namespace {

const int kBackupNumberSize = 8;

// Index 0 has no number, so the first backup of Drovia.app is Drovia.app_tmp.
ustring GetAppBackupDir(const ustring& app, int n)
{
    const ustring dir = app + layout::kBackupSuffix;
    if (n == 0)
        return dir;
    char number[kBackupNumberSize];
    if (snprintf(number, sizeof(number), "%d", n) < 0) {
        LOG_MSG_WITHOUT_NEWLINE(ERROR, "snprintf failed (continuing without postfix)");
        number[0] = '\0';
    }
    return dir + number;
}

// Moves app to the first backup name the file layer accepts. Returns the
// index used and sets backup, or -1 when every name was refused.
int MoveAppAside(const ustring& app, ustring& backup)
{
    for (int index = 0; index < layout::kBackupNames; ++index) {
        backup = GetAppBackupDir(app, index);
        if (FSRename(app, backup, false) == FS_OK)
            return index;
        LOG_MSG(ERROR, "failed to backup app from '%s' -> '%s'", app.c_str_utf8(), backup.c_str_utf8());
    }
    LOG_MSG(ERROR, "failed to backup app from '%s' -> '%s' at max retries, exiting", app.c_str_utf8(),
            backup.c_str_utf8());
    return -1;
}

ustring ParentFolder(const ustring& path)
{
    return path.substr(0, path.rfind('/'));
}

}  // namespace

UpgradeTransaction::UpgradeTransaction(const ustring& app)
    : app(app), staging(StagingFolder(app)), folder(ParentFolder(app))
{
}

ustring UpgradeTransaction::StagingFolder(const ustring& app)
{
    return app + layout::kStagingSuffix;
}

void UpgradeTransaction::Settle()
{
    if (IsFileExist(staging, false))
        Remove(staging);
    // The highest name is the latest backup: the loop that made it took the
    // first free one.
    for (int index = layout::kBackupNames - 1; index >= 0; --index) {
        const ustring backup = GetAppBackupDir(app, index);
        if (!IsFileExist(backup, false))
            continue;
        if (IsFileExist(app, false))
            Remove(backup);
        else
            PutBackupBack(backup);
    }
}

int UpgradeTransaction::Begin()
{
    FSRemove(staging, false);
    if (!IsFileExist(staging, false))
        return 0;
    LOG_MSG(ERROR, "cannot empty the staging folder '%s'", staging.c_str_utf8());
    return -1;
}

int UpgradeTransaction::Commit()
{
    if (FSSync(staging) != FS_OK)
        return -1;
    const int status = IsFileExist(app, false) ? Exchange() : FSRename(staging, app, false);
    if (status != FS_OK)
        return -1;
    // Nothing of the old tree may go before the new one is in place for good.
    FSSync(folder);
    return 0;
}

void UpgradeTransaction::Abandon()
{
    Remove(staging);
}

int UpgradeTransaction::Exchange()
{
    return FSExchange(staging, app) == FS_OK ? FS_OK : ExchangeThroughBackup();
}

// Between the two renames there is no bundle; Settle then puts the backup
// back, so an interrupted commit ends with the old installation.
int UpgradeTransaction::ExchangeThroughBackup()
{
    ustring backup;
    if (MoveAppAside(app, backup) < 0)
        return FS_ERROR;
    if (FSRename(staging, app, false) == FS_OK)
        return FS_OK;
    PutBackupBack(backup);
    return FS_ERROR;
}

void UpgradeTransaction::PutBackupBack(const ustring& backup)
{
    LOG_MSG(NOTE, "putting the installation back from '%s'", backup.c_str_utf8());
    if (FSRename(backup, app, false) == FS_OK)
        FSSync(folder);
}

void UpgradeTransaction::Remove(const ustring& path)
{
    LOG_MSG(INFO, "removing '%s'", path.c_str_utf8());
    if (FSRemove(path, false) != FS_OK)
        LOG_MSG(WARNING, "could not remove all of '%s'", path.c_str_utf8());
}
