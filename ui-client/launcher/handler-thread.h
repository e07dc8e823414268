#ifndef HANDLER_THREAD_H
#define HANDLER_THREAD_H

#include <QThread>

// The worker's thread: it does nothing but run an event loop, in which the
// Worker's slots are called.
class HandlerThread : public QThread {
    Q_OBJECT

protected:
    void run() override;
};

#endif  // HANDLER_THREAD_H
