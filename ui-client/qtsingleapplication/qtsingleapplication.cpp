#include "qtsingleapplication.h"

#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include "install-layout.h"

namespace {

// Readable part of the lock file's name, so that a look into the temporary
// folder tells which program holds which lock.
const int kNamePrefixLength = 6;

}  // namespace

QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool GUIenabled)
    : QApplication(argc, argv, GUIenabled), instance_lock(instanceLockPath())
{
    // The lock is held for the whole life of the process, so its age says
    // nothing: only a dead holder makes it stale.
    instance_lock.setStaleLockTime(0);
    // Only a lock held by someone else means another instance; a temporary
    // folder that cannot hold the lock must not keep the program from running.
    other_instance_running =
        !instance_lock.tryLock(0) && instance_lock.error() == QLockFile::LockFailedError;
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
    const QByteArray digest = QCryptographicHash::hash((app_path + QLatin1Char('\n') + user_id).toUtf8(),
                                                       QCryptographicHash::Sha1);

    QString prefix = app_path.section(QLatin1Char('/'), -1);
    prefix.remove(QRegularExpression(QStringLiteral("[^a-zA-Z]")));
    prefix.truncate(kNamePrefixLength);

    const QString name = QStringLiteral("qtsingleapp-%1-%2.lock").arg(prefix, QString::fromLatin1(digest.toHex()));
    return QDir(lockFolder()).filePath(name);
}

// A folder only its user can write: in the shared temporary folder another
// user could plant a file of the lock's predictable name and keep every
// launch from running.
QString QtSingleApplication::lockFolder()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!runtime.isEmpty() && QFileInfo(runtime).isDir())
        return runtime;
    // Without one, the launcher's own folder in the home folder.
    const QString home = QDir::homePath() + "/" + layout::kUserFolder;
    QDir().mkpath(home);
    return home;
}
