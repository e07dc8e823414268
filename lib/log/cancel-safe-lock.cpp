#include "cancel-safe-lock.h"

CancelSafeLock::CancelSafeLock(pthread_mutex_t* held) : mutex(held)
{
    pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &old_state);
    is_locked = pthread_mutex_lock(mutex) == 0;
}

CancelSafeLock::~CancelSafeLock()
{
    if (is_locked)
        pthread_mutex_unlock(mutex);
    pthread_setcancelstate(old_state, nullptr);
}
