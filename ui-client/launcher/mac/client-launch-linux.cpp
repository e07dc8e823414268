#include "client-launch.h"

#include <QProcess>
#include <QStringList>

bool StartClientBundle(const QString& bundle_path)
{
    const QString executable = bundle_path + "/" + QLatin1String(kBundleClientExecutable);
    return QProcess::startDetached(executable, QStringList());
}
