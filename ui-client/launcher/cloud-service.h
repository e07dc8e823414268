#ifndef CLOUD_SERVICE_H
#define CLOUD_SERVICE_H

#include "ustring.h"

// The upgrade service: where the bundle and the per-user installation live,
// the version information of both, and the installation of the package as
// one transaction (upgrade-transaction.h). Platform classes supply stopping
// and starting the client.
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
    // Unpacks the bundle's package archive into the per-user bundle's
    // staging folder.
    virtual int ExtractPackage();
    // Fill the "source_" (per-user) and "target_" (bundle) version fields.
    virtual void LoadSourceVersion();
    virtual void LoadTargetVersion();
    // Unpacks the package beside the per-user bundle, then swaps the two.
    // 0 on success; -1 on failure, with the bundle as it was.
    virtual int PrepareUserEnv();

    // Finishes or undoes an upgrade that a run did not finish, and removes
    // the tree that an upgrade replaced.
    void SettleUserEnv();
    // Deletes the folder that an older layout kept beside the bundle.
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
