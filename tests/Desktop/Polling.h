#pragma once

#include <QElapsedTimer>
#include <QThread>

namespace vesk
{

/// Asks again and again until `isTrue()` holds. False when it did not within the time.
template <class Predicate>
bool PollUntil(Predicate isTrue, int timeoutMs)
{
    QElapsedTimer timer;
    timer.start();
    while (!isTrue())
    {
        if (timer.hasExpired(timeoutMs))
            return false;
        QThread::msleep(5);
    }
    return true;
}

}
