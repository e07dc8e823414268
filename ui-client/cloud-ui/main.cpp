// The demo desktop client. It runs from the per-user bundle that the launcher
// keeps up to date, announces itself through its pid file and ends cleanly
// when the launcher asks it to (SIGTERM).
#include <QApplication>
#include <QDir>
#include <QtGlobal>

#include "client-window.h"
#include "install-layout.h"
#include "pid-file.h"
#include "term-signal-watcher.h"

namespace {

QString PidFilePath()
{
    return QDir::homePath() + "/" + layout::kUserFolder + "/" + layout::kPidFile;
}

// The executable sits in Contents/MacOS, two folders below the bundle.
QString BundleVersionFile()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../../" + layout::kResourcesFolder +
                           "/" + layout::kVersionFileName);
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);

    TermSignalWatcher term_watcher;
    if (!term_watcher.isValid())
        qWarning("cloud-ui: cannot watch for SIGTERM; the launcher will have to kill this client");
    QObject::connect(&term_watcher, &TermSignalWatcher::terminationRequested, &app, &QCoreApplication::quit);

    PidFile pid_file(PidFilePath());
    if (!pid_file.write())
        qWarning("cloud-ui: cannot write %s", qPrintable(PidFilePath()));

    ClientWindow window(BundleVersionFile());
    window.show();
    return app.exec();
}
