#ifndef PID_FILE_H
#define PID_FILE_H

#include <QString>

// The client's pid file, through which the launcher finds and stops a running
// client before it replaces it. Removed again when the client ends, unless a
// newer client has written its own pid there in the meantime.
class PidFile {
public:
    explicit PidFile(const QString& path);
    ~PidFile();

    PidFile(const PidFile&) = delete;
    PidFile& operator=(const PidFile&) = delete;

    bool write();

private:
    QByteArray contents() const;

    QString path;
    bool written = false;
};

#endif  // PID_FILE_H
