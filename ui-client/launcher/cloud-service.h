#ifndef CLOUD_SERVICE_H
#define CLOUD_SERVICE_H

#include "ustring.h"

// The upgrade service: where the bundle and the per-user installation live,
// the version information of both, and the installation with backup and
// rollback. Platform classes supply stopping and starting the client.
//
// The virtual operations keep their order: platform classes replace single
// steps, and the steps call each other through the virtual table.
class Service {
public:
    virtual ~Service();
    virtual void StopService() = 0;
    virtual void SetTimeout(int timeout);
    virtual int HandlePackageUpgrade() = 0;
    virtual void PostUpgrade() = 0;
    virtual void PreUpgrade() = 0;
    virtual bool IsNeedUpgrade() = 0;
    // Unpacks the bundle's package archive into the per-user bundle.
    virtual int ExtractPackage();
    // Fill the "source_" (per-user) and "target_" (bundle) version fields.
    virtual void LoadSourceVersion();
    virtual void LoadTargetVersion();
    // Moves the per-user bundle aside, unpacks the package, then deletes the
    // backup or puts it back. 0 on success, -1 on failure.
    virtual int PrepareUserEnv();

    // Deletes the folder that an older layout kept beside the bundle, and
    // the backups of interrupted runs once the installation is complete.
    void RemoveAgedFolders();

    // Locations derived from the home folder and the launcher's own
    // executable folder; recomputed on every call.
    static ustring GetUserInstallPath();
    static ustring GetRootDroviaInstallPath();
    static ustring GetRootDroviaResourceInstallPath();
    static ustring GetUserDroviaInstallPath();
    static ustring GetUserDroviaAppInstallPath();

protected:
    static ustring PerUserVersionFile();

    int timeout = 0;
    ustring user_app_path;
    ustring target_major_version;
    ustring target_minor_version;
    ustring target_build_version;
    ustring target_icon_overlay_version;
    ustring source_major_version;
    ustring source_minor_version;
    ustring source_build_version;
    ustring source_icon_overlay_version;
};

#endif  // CLOUD_SERVICE_H
