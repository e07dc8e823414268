#ifndef CLOUD_SERVICE_H
#define CLOUD_SERVICE_H

#include "ustring.h"

// The upgrade service: where the bundle and the per-user installation live,
// the version information of both, and the installation with backup and
// rollback. Platform classes supply stopping and starting the client.
class Service {
public:
    virtual ~Service();
    virtual void StopService() = 0;
    virtual void SetTimeout(int timeout);
    virtual int HandlePackageUpgrade() = 0;
    virtual void PostUpgrade() = 0;
    virtual void PreUpgrade() = 0;
    virtual bool IsNeedUpgrade() = 0;
    virtual int ExtractPackage();
    virtual void LoadSourceVersion();
    virtual void LoadTargetVersion();
    virtual int PrepareUserEnv();

    void RemoveAgedFolders();

    static ustring GetUserInstallPath();
    static ustring GetRootDroviaInstallPath();
    static ustring GetRootDroviaResourceInstallPath();
    static ustring GetUserDroviaInstallPath();
    static ustring GetUserDroviaAppInstallPath();

protected:
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
