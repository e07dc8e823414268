#ifndef QTSINGLEAPPLICATION_H
#define QTSINGLEAPPLICATION_H

#include <QApplication>

// An application object that knows whether another copy of the same
// executable, run by the same user, is alive. The first copy holds a lock on
// a file in the user's private runtime folder (or ~/.Drovia) for as long as
// it lives.
class QtSingleApplication : public QApplication {
    Q_OBJECT

public:
    QtSingleApplication(int& argc, char** argv, bool GUIenabled = true);
    ~QtSingleApplication() override;

    // True when another live instance holds the lock.
    bool isRunning();

    // $XDG_RUNTIME_DIR if it is the user's and closed to others (mode 0700),
    // as the XDG rules want it; else empty.
    static QString privateRuntimeFolder();

private:
    static QString instanceLockPath();
    static QString lockFolder();

    int instance_lock = -1;
    bool other_instance_running = false;
};

#endif  // QTSINGLEAPPLICATION_H
