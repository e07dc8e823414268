#include "cloud-service.h"

#include <sys/stat.h>

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QString>

#include <cstdio>
#include <utility>

#include "extractor.h"
#include "file-op.h"
#include "install-layout.h"
#include "log.h"
#include "qt-ustring.h"

#define LOG_COMPONENT "service_debug"
#define LOG_TAG "cloud-service"

namespace {

const int kBackupNumberSize = 8;

// A FIFO or a device in the version file's place would block the settings
// reader or never end.
bool IsRegularFile(const ustring& path)
{
    struct stat st;
    return stat(path.c_str_utf8(), &st) == 0 && S_ISREG(st.st_mode);
}

// Fills only the fields whose key the file has, so a missing or unreadable
// file leaves every field as it was. The file is never written back.
void ReadVersionFile(const ustring& path, ustring& major, ustring& minor, ustring& build,
                     ustring& icon_overlay)
{
    if (!IsRegularFile(path)) {
        LOG_MSG(NOTE, "'%s' is not a regular file, not read", path.c_str_utf8());
        return;
    }
    QSettings settings(ToQString(path), QSettings::IniFormat);
    settings.beginGroup(QLatin1String(layout::kVersionGroup));
    const std::pair<const char*, ustring*> keys[] = {
        {"major_version", &major},
        {"minor_version", &minor},
        {layout::kBuildKey, &build},
        {"icon_overlay_version", &icon_overlay},
    };
    for (const auto& [key, field] : keys) {
        if (settings.contains(QLatin1String(key)))
            *field = ToUstring(settings.value(QLatin1String(key)).toString());
    }
}

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

// Lower indices go too: they are backups that earlier runs could not clean up.
// A backup that refuses to go only costs disk space, so failures are ignored.
void RemoveBackups(const ustring& app, int last_index)
{
    for (int index = 0; index <= last_index; ++index)
        FSRemove(GetAppBackupDir(app, index), false);
}

// Backups that interrupted runs left behind go once a complete installation
// is in place: its version file is the package's last entry. Until then one
// of them may hold the user's last working client.
void RemoveLeftoverBackups(const ustring& app, const ustring& version_file)
{
    if (!IsFileExist(version_file, false))
        return;
    for (int index = 0; index < layout::kBackupNames; ++index) {
        const ustring backup = GetAppBackupDir(app, index);
        if (IsFileExist(backup, false)) {
            LOG_MSG(INFO, "removing leftover backup %s", backup.c_str_utf8());
            FSRemove(backup, false);
        }
    }
}

}  // namespace

Service::~Service() = default;

void Service::SetTimeout(int value)
{
    timeout = value;
}

ustring Service::GetUserInstallPath()
{
    return ToUstring(QDir::homePath());
}

ustring Service::GetRootDroviaInstallPath()
{
    return ToUstring(QDir::cleanPath(QCoreApplication::applicationDirPath() + "/" + "../.."));
}

ustring Service::GetRootDroviaResourceInstallPath()
{
    return GetRootDroviaInstallPath() + "/" + layout::kResourcesFolder;
}

ustring Service::GetUserDroviaInstallPath()
{
    return GetUserInstallPath() + "/" + layout::kUserFolder;
}

ustring Service::GetUserDroviaAppInstallPath()
{
    return GetUserDroviaInstallPath() + "/" + layout::kBundleName;
}

void Service::LoadTargetVersion()
{
    const ustring path = GetRootDroviaResourceInstallPath() + "/" + layout::kVersionFileName;
    ReadVersionFile(path, target_major_version, target_minor_version, target_build_version,
                    target_icon_overlay_version);
    LOG_MSG(INFO, "target_version = (%s, %s, %s, %s)", target_major_version.c_str_utf8(),
            target_minor_version.c_str_utf8(), target_build_version.c_str_utf8(),
            target_icon_overlay_version.c_str_utf8());
}

void Service::LoadSourceVersion()
{
    const ustring path = PerUserVersionFile();
    if (!IsFileExist(path, false)) {
        LOG_MSG(INFO, "source does not exist");
        return;
    }
    ReadVersionFile(path, source_major_version, source_minor_version, source_build_version,
                    source_icon_overlay_version);
    LOG_MSG(INFO, "source_version = (%s, %s, %s, %s)", source_major_version.c_str_utf8(),
            source_minor_version.c_str_utf8(), source_build_version.c_str_utf8(),
            source_icon_overlay_version.c_str_utf8());
}

int Service::ExtractPackage()
{
    const ustring archive = GetRootDroviaResourceInstallPath() + "/" + layout::kPackageArchive;
    const ustring destination = GetUserDroviaAppInstallPath();
    if (FSMKDir(destination, true) != FS_OK) {
        LOG_MSG(ERROR, "failed to create folder: '%s'", destination.c_str_utf8());
        return -1;
    }
    LOG_MSG(INFO, "extract package: '%s' -> '%s'", archive.c_str_utf8(), destination.c_str_utf8());
    Extractor extractor;
    extractor.archive_path = archive;
    extractor.dest_path = destination;
    return extractor.Extract();
}

int Service::PrepareUserEnv()
{
    const ustring app = user_app_path;
    ustring backup;
    int backup_index = 0;
    if (IsFileExist(app, false)) {
        backup_index = MoveAppAside(app, backup);
        if (backup_index < 0)
            return -1;
    }

    if (ExtractPackage() == 0) {
        LOG_MSG(INFO, "user installation is ready, removing backup app");
        RemoveBackups(app, backup_index);
        return 0;
    }

    if (backup.empty()) {
        LOG_MSG(ERROR, "Failed to extract package, and no old installation to rollback");
        return -1;
    }
    LOG_MSG(ERROR, "Failed to extract package, rollback to old installation");
    // A rollback that fails half-way has no better fallback than what the
    // file layer leaves; the caller already learns that the upgrade failed.
    FSRemove(app, false);
    FSRename(backup, app, false);
    return -1;
}

void Service::RemoveAgedFolders()
{
    const ustring aged = GetUserDroviaInstallPath() + "/" + layout::kAgedAppFolder;
    LOG_MSG(INFO, "removing aged app folder %s", aged.c_str_utf8());
    FSRemove(aged, false);
    RemoveLeftoverBackups(GetUserDroviaAppInstallPath(), PerUserVersionFile());
}

ustring Service::PerUserVersionFile()
{
    return GetUserDroviaAppInstallPath() + "/" + layout::kResourcesFolder + "/" + layout::kVersionFileName;
}
