#include "cloud-service.h"

#include <sys/stat.h>

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QString>

#include <utility>

#include "extractor.h"
#include "file-op.h"
#include "install-layout.h"
#include "log.h"
#include "qt-ustring.h"
#include "upgrade-transaction.h"

#define LOG_COMPONENT "service_debug"
#define LOG_TAG "cloud-service"

namespace {

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
    const ustring destination = UpgradeTransaction::StagingFolder(user_app_path);
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

// The old installation stays untouched until the whole package is unpacked
// and durable beside it; only then do the two change places.
int Service::PrepareUserEnv()
{
    UpgradeTransaction upgrade(user_app_path);
    if (upgrade.Begin() != 0)
        return -1;
    if (ExtractPackage() != 0) {
        if (IsFileExist(user_app_path, false))
            LOG_MSG(ERROR, "Failed to extract package, rollback to old installation");
        else
            LOG_MSG(ERROR, "Failed to extract package, and no old installation to rollback");
        upgrade.Abandon();
        return -1;
    }
    if (upgrade.Commit() != 0) {
        LOG_MSG(ERROR, "failed to put the new installation in place, keeping the old one");
        upgrade.Abandon();
        return -1;
    }
    LOG_MSG(INFO, "user installation is ready, removing backup app");
    return 0;
}

void Service::SettleUserEnv()
{
    UpgradeTransaction(user_app_path).Settle();
}

void Service::RemoveAgedFolders()
{
    const ustring aged = GetUserDroviaInstallPath() + "/" + layout::kAgedAppFolder;
    LOG_MSG(INFO, "removing aged app folder %s", aged.c_str_utf8());
    FSRemove(aged, false);
}

ustring Service::PerUserVersionFile()
{
    return GetUserDroviaAppInstallPath() + "/" + layout::kResourcesFolder + "/" + layout::kVersionFileName;
}
