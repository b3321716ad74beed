#pragma once

#include <atomic>
#include <functional>

class QMainWindow;
class ReadingMonitor;

namespace vesk
{
class ProgressBarDefinition;
}

/// How far work in another thread is, and whether it is to go on.
class WorkProgress final
{
public:
    /// Called by the work now and then with the share that is done, from 0 to 1. Returns false if
    /// the work is to stop.
    bool Advance(double share)
    {
        m_share.store(share, std::memory_order_relaxed);
        return !m_isCancelled.load(std::memory_order_relaxed);
    }

    double GetShare() const { return m_share.load(std::memory_order_relaxed); }
    void Cancel() { m_isCancelled.store(true, std::memory_order_relaxed); }

private:
    std::atomic<double> m_share{0.0};
    std::atomic<bool> m_isCancelled{false};
};

/// Runs work in a thread of its own and returns once it has ended.
///
/// Meanwhile the window lives as ReadingMonitor says, and shows the progress. The work must not
/// touch what belongs to the window's thread. The definition may be null. Returns false if the work
/// was cancelled; rethrows what it throws. The window may have been closed meanwhile.
bool RunInBackground(QMainWindow& window, vesk::ProgressBarDefinition* pProgress,
                     const std::function<void(WorkProgress&)>& work);

/// The same under a monitor that is there already. The work is not cancelled: whoever has the
/// monitor sees afterwards that all is to end.
void RunInBackground(ReadingMonitor& monitor, const std::function<void(WorkProgress&)>& work);
