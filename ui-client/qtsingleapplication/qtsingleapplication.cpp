#include "qtsingleapplication.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include "install-layout.h"

namespace {

// Readable part of the lock file's name, so that a look into the folder
// tells which program holds which lock.
const int kNamePrefixLength = 6;

}  // namespace

// The kernel's lock on the file, held for the process's life, goes with the
// process however it ends: a killed copy leaves no stale lock behind, and what
// the file holds does not matter. Only a lock held by another copy means
// another instance; a folder that cannot hold the file must not keep the
// program from running.
QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool GUIenabled)
    : QApplication(argc, argv, GUIenabled)
{
    instance_lock =
        open(QFile::encodeName(instanceLockPath()).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    other_instance_running =
        instance_lock >= 0 && flock(instance_lock, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

QtSingleApplication::~QtSingleApplication()
{
    if (instance_lock >= 0)
        close(instance_lock);
}

bool QtSingleApplication::isRunning()
{
    return other_instance_running;
}

// The id depends on the executable's path and the user, so that copies run
// from two different bundles, or by two users, never see each other.
QString QtSingleApplication::instanceLockPath()
{
    const QString app_path = QCoreApplication::applicationFilePath();
    const QString user_id = QString::number(::getuid());
    const QByteArray digest =
        QCryptographicHash::hash((app_path + QLatin1Char('\n') + user_id).toUtf8(), QCryptographicHash::Sha1);

    QString prefix = app_path.section(QLatin1Char('/'), -1);
    prefix.remove(QRegularExpression(QStringLiteral("[^a-zA-Z]")));
    prefix.truncate(kNamePrefixLength);

    const QString name =
        QStringLiteral("qtsingleapp-%1-%2.lock").arg(prefix, QString::fromLatin1(digest.toHex()));
    return QDir(lockFolder()).filePath(name);
}

QString QtSingleApplication::privateRuntimeFolder()
{
    const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
    struct stat folder;
    if (runtime.isEmpty() || stat(runtime.constData(), &folder) != 0)
        return QString();
    const bool closed =
        S_ISDIR(folder.st_mode) && folder.st_uid == getuid() && (folder.st_mode & 0777) == 0700;
    return closed ? QFile::decodeName(runtime) : QString();
}

// A folder only its user can write: in a folder open to others another user
// could plant a file of the lock's predictable name, hold its lock and keep
// every launch from running.
QString QtSingleApplication::lockFolder()
{
    const QString runtime = privateRuntimeFolder();
    if (!runtime.isEmpty())
        return runtime;
    // Without one, the launcher's own folder in the home folder.
    const QString home = QDir::homePath() + "/" + layout::kUserFolder;
    QDir().mkpath(home);
    return home;
}
