#ifndef RELIABILITY_SANDBOX_H
#define RELIABILITY_SANDBOX_H

#include <QMap>
#include <QString>

#include "launcher-sandbox.h"
#include "tree-snapshot.h"

// The end-to-end sandbox with packages and installations big enough for an
// interruption to land inside each stage of an upgrade.
class ReliabilitySandbox : public LauncherSandbox {
protected:
    QString packagePath() const { return bundle + "/Contents/Resources/package/drovia.vpk"; }

    // Ships build in the bundle with count extra files of file_size bytes.
    void shipLargePackage(int build, const QString& label, int count, int file_size);
    // Replaces the per-user installation with build and count extra files.
    void resetUserInstallation(int build, const QString& label, int count);

    // Runs script with sh under prefix (for instance unshare and its options)
    // and returns its "key=value" lines.
    QMap<QString, QString> runScript(const QStringList& prefix, const QByteArray& script,
                                     const QProcessEnvironment& env);

    TreeSnapshot userBundle() const { return SnapshotOfFolder(userPath("Drovia.app")); }
};

bool mountNamespaceAvailable();

#endif  // RELIABILITY_SANDBOX_H
