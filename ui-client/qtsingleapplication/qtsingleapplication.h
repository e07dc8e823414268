#ifndef QTSINGLEAPPLICATION_H
#define QTSINGLEAPPLICATION_H

#include <QApplication>
#include <QLockFile>

// An application object that knows whether another copy of the same
// executable, run by the same user, is alive. The first copy holds a lock
// file in the user's runtime folder (or ~/.Drovia) for as long as it exists;
// a copy that crashed or was killed leaves a stale lock that the next copy
// takes over.
class QtSingleApplication : public QApplication {
    Q_OBJECT

public:
    QtSingleApplication(int& argc, char** argv, bool GUIenabled = true);

    // True when another live instance holds the lock.
    bool isRunning();

private:
    static QString instanceLockPath();
    static QString lockFolder();

    QLockFile instance_lock;
    bool other_instance_running;
};

#endif  // QTSINGLEAPPLICATION_H
