#ifndef CANCEL_SAFE_LOCK_H
#define CANCEL_SAFE_LOCK_H

#include <pthread.h>

// Holds a mutex with thread cancellation disabled, so that a thread cancelled
// while it holds the lock cannot leave it taken. The old cancellation state
// comes back with the unlock.
class CancelSafeLock {
public:
    explicit CancelSafeLock(pthread_mutex_t* held);
    ~CancelSafeLock();

    CancelSafeLock(const CancelSafeLock&) = delete;
    CancelSafeLock& operator=(const CancelSafeLock&) = delete;

    bool locked() const { return is_locked; }

private:
    pthread_mutex_t* mutex;
    int old_state = PTHREAD_CANCEL_ENABLE;
    bool is_locked = false;
};

#endif  // CANCEL_SAFE_LOCK_H
