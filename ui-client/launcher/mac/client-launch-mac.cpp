#include "client-launch.h"

#include <QDesktopServices>
#include <QUrl>

bool StartClientBundle(const QString& bundle_path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(bundle_path));
}
