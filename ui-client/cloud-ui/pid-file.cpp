#include "pid-file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

PidFile::PidFile(const QString& path) : path(path)
{
}

PidFile::~PidFile()
{
    if (!written)
        return;
    QFile file(path);
    if (file.open(QIODevice::ReadOnly) && file.readAll() == contents()) {
        file.close();
        file.remove();
    }
}

// Written through a temporary file and a rename, so the launcher never reads
// a half-written pid.
bool PidFile::write()
{
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const QByteArray data = contents();
    if (file.write(data) != data.size() || !file.commit())
        return false;
    written = true;
    return true;
}

QByteArray PidFile::contents() const
{
    return "pid=" + QByteArray::number(QCoreApplication::applicationPid()) + "\n";
}
