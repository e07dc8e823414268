#include "test-log.h"

#include <QFile>

#include "log.h"

namespace {

QString log_file_path;

qint64 LogSize()
{
    QFile file(log_file_path);
    return file.exists() ? file.size() : 0;
}

}  // namespace

bool StartTestLog(const QString& folder)
{
    const QString level_file = folder + "/levels";
    QFile levels(level_file);
    if (!levels.open(QIODevice::WriteOnly) ||
        levels.write("service_debug=7\nextractor_debug=7\n") < 0)
        return false;
    levels.close();
    log_file_path = folder + "/test.log";
    return Logger::Initialize(Logger::TYPE_FILE, log_file_path.toUtf8().constData(),
                              level_file.toUtf8().constData(), 50) == 0;
}

LogCapture::LogCapture() : start(LogSize()) {}

std::string LogCapture::Text() const
{
    QFile file(log_file_path);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(start))
        return std::string();
    return file.readAll().toStdString();
}
