#include "handler-thread.h"

void HandlerThread::run()
{
    exec();
}
