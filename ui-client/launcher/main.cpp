// The launcher's entry point: one instance per bundle and user, a log in the
// per-user installation, the UI in the user's language, then the Launcher
// runs the upgrade and starts the client.
#include <clocale>
#include <cstdio>

#include <QDir>
#include <QString>
#include <QStringList>
#include <QTranslator>

#include "VelmLocale.h"
#include "cloud-service.h"
#include "install-layout.h"
#include "launcher.h"
#include "log.h"
#include "qt-ustring.h"
#include "qtsingleapplication.h"
#include "strtable.h"

#define LOG_COMPONENT "launcher_debug"
#define LOG_TAG "main"

namespace {

const int kLogRotateCount = 50;

// Named textually from argv[0], as in a bundle: Contents/MacOS/launcher
// gives Contents/Frameworks/plugins. It must be set before the application
// object exists, which loads the platform plug-in from there.
void UseBundlePlugins(const char* argv0)
{
    const QString plugin_path =
        QDir::cleanPath(QString::fromLocal8Bit(argv0) + QStringLiteral("/../../Frameworks/plugins"));
    QCoreApplication::setLibraryPaths(QStringList(plugin_path));
    std::printf("lib path = '%s'\n", plugin_path.toUtf8().constData());
}

// Without a log folder the logger stays on standard error, where errors and
// warnings still show.
void OpenLog()
{
    const ustring level_file = Service::GetRootDroviaInstallPath() + "/" + layout::kLevelFile;
    const ustring log_folder = Service::GetUserDroviaInstallPath() + "/" + layout::kLogFolder;
    if (!QDir().mkpath(ToQString(log_folder)))
        return;
    const ustring log_file = log_folder + "/" + layout::kLogFile;
    if (Logger::Initialize(Logger::TYPE_FILE, log_file, level_file, kLogRotateCount) != 0)
        std::fprintf(stderr, "launcher: cannot open %s, logging to standard error\n", log_file.c_str_utf8());
}

// A catalogue that cannot be loaded leaves the translator empty, and an
// empty translator is not installed: the texts then stay English.
void InstallTranslator(QTranslator& translator)
{
    const QString catalogue = QStringLiteral(":/") + VelmLocale::getDefaultLanguage() + QStringLiteral(".qm");
    translator.load(catalogue);
    if (!translator.isEmpty())
        QCoreApplication::installTranslator(&translator);
}

}  // namespace

int main(int argc, char** argv)
{
    std::setlocale(LC_ALL, "");
    Q_INIT_RESOURCE(texts);
    UseBundlePlugins(argv[0]);

    QtSingleApplication app(argc, argv, true);
    OpenLog();
    if (app.isRunning()) {
        LOG_MSG(DEBUG, "app has already launched, return");
        return 0;
    }

    QTranslator translator;
    InstallTranslator(translator);
    StrTable::InitStrTable();

    Launcher* launcher = new Launcher;
    launcher->Run();
    launcher->Start();
    const int status = app.exec();
    delete launcher;
    return status;
}
