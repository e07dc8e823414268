#include "files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

bool WriteBytes(const QString& path, const std::string& bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes.data(), static_cast<qint64>(bytes.size())) == static_cast<qint64>(bytes.size());
}

std::string ReadBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

std::string RandomBytes(std::mt19937& random, size_t size)
{
    std::string bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

int Repetitions(int quick, int soak)
{
    return qEnvironmentVariableIsSet("DROVIA_SOAK") ? soak : quick;
}

void WaitUntil(const std::function<bool()>& ready, int timeout_ms)
{
    QElapsedTimer timer;
    timer.start();
    while (!ready() && timer.elapsed() < timeout_ms)
        QThread::msleep(20);
}

int HoldLock(const QString& path)
{
    const int fd = open(QFile::encodeName(path).constData(), O_CREAT | O_RDWR | O_CLOEXEC, 0666);
    if (fd >= 0 && flock(fd, LOCK_EX) != 0) {
        close(fd);
        return -1;
    }
    return fd;
}
