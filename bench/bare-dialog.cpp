// The least a launcher run can cost: the same application object and the
// same dialog, built and thrown away. The launch benchmark compares a
// no-upgrade run of the launcher with this program.
#include <QDir>
#include <QStringList>

#include "processing-progress-dialog.h"
#include "qtsingleapplication.h"
#include "strtable.h"

int main(int argc, char** argv)
{
    // Placed beside the launcher in the bundle, so that both load the same
    // platform plug-in from the same folder.
    QCoreApplication::setLibraryPaths(QStringList(
        QDir::cleanPath(QString::fromLocal8Bit(argv[0]) + QStringLiteral("/../../Frameworks/plugins"))));
    QtSingleApplication app(argc, argv, true);
    StrTable::InitStrTable();
    ProcessingProgressDialog dialog;
    return app.isRunning() ? 1 : 0;
}
