#ifndef TERM_SIGNAL_WATCHER_H
#define TERM_SIGNAL_WATCHER_H

#include <QObject>

class QSocketNotifier;

// Turns SIGTERM and SIGINT into a Qt signal on the GUI thread. The handler
// only writes one byte into a socket pair; everything else happens in the
// event loop, where it is safe to quit the application.
class TermSignalWatcher : public QObject {
    Q_OBJECT

public:
    explicit TermSignalWatcher(QObject* parent = nullptr);
    ~TermSignalWatcher() override;

    bool isValid() const;

signals:
    void terminationRequested();

private slots:
    void drainWakeUps();

private:
    static void handleSignal(int signo);
    static bool installHandler(int signo);

    static int wake_fds[2];
    QSocketNotifier* notifier = nullptr;
};

#endif  // TERM_SIGNAL_WATCHER_H
