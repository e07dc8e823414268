#include "term-signal-watcher.h"

#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include <QSocketNotifier>

int TermSignalWatcher::wake_fds[2] = {-1, -1};

TermSignalWatcher::TermSignalWatcher(QObject* parent) : QObject(parent)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, wake_fds) != 0)
        return;
    notifier = new QSocketNotifier(wake_fds[1], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &TermSignalWatcher::drainWakeUps);
    if (!installHandler(SIGTERM) || !installHandler(SIGINT)) {
        delete notifier;
        notifier = nullptr;
    }
}

TermSignalWatcher::~TermSignalWatcher()
{
    std::signal(SIGTERM, SIG_DFL);
    std::signal(SIGINT, SIG_DFL);
    delete notifier;
    for (int& fd : wake_fds) {
        if (fd >= 0)
            ::close(fd);
        fd = -1;
    }
}

bool TermSignalWatcher::isValid() const
{
    return notifier != nullptr;
}

void TermSignalWatcher::drainWakeUps()
{
    char buffer[16];
    while (::read(wake_fds[1], buffer, sizeof buffer) > 0) {
    }
    emit terminationRequested();
}

void TermSignalWatcher::handleSignal(int)
{
    const int saved_errno = errno;
    const char wake_up = 1;
    if (::write(wake_fds[0], &wake_up, 1) < 0) {
        // A full socket already holds a pending wake-up.
    }
    errno = saved_errno;
}

bool TermSignalWatcher::installHandler(int signo)
{
    struct sigaction action = {};
    action.sa_handler = &TermSignalWatcher::handleSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    return ::sigaction(signo, &action, nullptr) == 0;
}
