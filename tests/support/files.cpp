#include "files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

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

int HoldLock(const QString& path)
{
    const int fd = open(QFile::encodeName(path).constData(), O_CREAT | O_RDWR | O_CLOEXEC, 0666);
    if (fd >= 0 && flock(fd, LOCK_EX) != 0) {
        close(fd);
        return -1;
    }
    return fd;
}

QStringList MessagesIn(const QString& log)
{
    static const QRegularExpression line_shape(QStringLiteral(R"(\] ([\w/-]+)\(\d+\): (.*)$)"));
    QStringList messages;
    for (const QString& line : log.split('\n', Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch match = line_shape.match(line);
        if (match.hasMatch())
            messages << match.captured(1) + ": " + match.captured(2);
    }
    return messages;
}
