#pragma once

#include <QElapsedTimer>
#include <QThread>

namespace vesk
{

/// How long a test waits for what must come. Only a test that fails waits so long: no machine is
/// too slow.
constexpr int PATIENCE_MS = 120000;

/// Asks again and again until `isTrue()` holds. False when it did not within the time.
template <class Predicate>
bool PollUntil(Predicate isTrue, int timeoutMs = PATIENCE_MS)
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
