#pragma once

#include <QElapsedTimer>
#include <QThread>

namespace vesk
{

/// How long a test waits for an expected state. Only a failing test waits that long: no machine is
/// too slow.
constexpr int PATIENCE_MS = 120000;

/// Polls until `isTrue()` holds. Returns false on timeout.
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
