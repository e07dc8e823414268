// The launcher's entry point: one instance per bundle and user, a log in the
// per-user installation, the UI in the user's language, then the Launcher
// runs the upgrade and starts the client.
#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QTranslator>

#include <clocale>
#include <csignal>
#include <cstdio>
#include <optional>

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
const int kRefused = 1;
const char kRuntimeVariable[] = "XDG_RUNTIME_DIR";

// A write to a pipe that nobody reads any more, such as the start line's,
// must not end the run.
void IgnoreBrokenPipes()
{
    std::signal(SIGPIPE, SIG_IGN);
}

// Every path is the home folder's name read as UTF-8 (qt-ustring.h): any
// other name would give paths to another folder, beside the home.
bool HomeNameIsUtf8()
{
    const QByteArray home = qgetenv("HOME");
    const QString read = QDir::homePath();
    if (QString::fromUtf8(home).toUtf8() == home && QFile::encodeName(read) == read.toUtf8())
        return true;
    std::fprintf(stderr, "launcher: the home folder's name '%s' is not valid UTF-8, which Drovia needs\n",
                 home.constData());
    return false;
}

// Run as root with another user's home (sudo keeps HOME on some systems),
// it would leave that user an installation and a client of root's.
bool RootForAnotherUsersHome()
{
    struct stat home;
    if (geteuid() != 0 || stat(QFile::encodeName(QDir::homePath()).constData(), &home) != 0 ||
        home.st_uid == 0)
        return false;
    std::fprintf(
        stderr, "launcher: will not run as root with the home folder of user %u; start Drovia as that user\n",
        static_cast<unsigned>(home.st_uid));
    return true;
}

// What such a run as root left behind keeps the user's launcher from
// installing, logging and locking: it says so instead of failing at each step.
bool InstallationWritable()
{
    const ustring installation = Service::GetUserDroviaInstallPath();
    struct stat folder;
    if (stat(installation.c_str_utf8(), &folder) != 0 || access(installation.c_str_utf8(), W_OK | X_OK) == 0)
        return true;
    std::fprintf(
        stderr,
        "launcher: cannot write %s, which belongs to user %u; give it back to this user or remove it, "
        "then start Drovia again\n",
        installation.c_str_utf8(), static_cast<unsigned>(folder.st_uid));
    return false;
}

// The toolkit looks into the runtime folder while the application object
// starts and, without a private one, makes its own in the shared temporary
// folder. It is lent one in the installation until then; the value to give
// back is returned.
std::optional<QByteArray> LendRuntimeFolder()
{
    if (!QtSingleApplication::privateRuntimeFolder().isEmpty())
        return std::nullopt;
    const QString folder = ToQString(Service::GetUserDroviaInstallPath() + "/" + layout::kRuntimeFolder);
    if (!QDir().mkpath(folder) ||
        !QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)) {
        std::fprintf(stderr, "launcher: cannot make the runtime folder %s\n", folder.toUtf8().constData());
        return std::nullopt;
    }
    const QByteArray previous =
        qEnvironmentVariableIsSet(kRuntimeVariable) ? qgetenv(kRuntimeVariable) : QByteArray();
    qputenv(kRuntimeVariable, QFile::encodeName(folder));
    return previous;
}

// The client the launcher starts inherits the session's own value.
void ReturnRuntimeFolder(const std::optional<QByteArray>& previous)
{
    if (previous && previous->isNull())
        qunsetenv(kRuntimeVariable);
    else if (previous)
        qputenv(kRuntimeVariable, *previous);
}

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
    IgnoreBrokenPipes();
    std::setlocale(LC_ALL, "");
    if (!HomeNameIsUtf8() || RootForAnotherUsersHome())
        return kRefused;
    if (!InstallationWritable())
        return 0;
    Q_INIT_RESOURCE(texts);
    UseBundlePlugins(argv[0]);

    const std::optional<QByteArray> runtime = LendRuntimeFolder();
    QtSingleApplication app(argc, argv, true);
    ReturnRuntimeFolder(runtime);
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
