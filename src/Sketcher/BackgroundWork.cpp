#include "BackgroundWork.h"

#include "ReadingMonitor.h"

#include <QApplication>
#include <QScopeGuard>
#include <QThread>

#include <chrono>
#include <cstddef>
#include <functional>
#include <future>
#include <memory>

namespace
{

/// Runs work in a thread of its own, and `onCancelled` again and again from when the user cancels
/// until the work has ended.
void RunUnder(ReadingMonitor& monitor, WorkProgress& progress,
              const std::function<void(WorkProgress&)>& work,
              const std::function<void()>& onCancelled)
{
    constexpr std::chrono::milliseconds PauseBetweenLooks(10);
    constexpr std::size_t Whole = 1000;
    std::packaged_task<void()> task([&] { work(progress); });
    std::future<void> result = task.get_future();
    // One of the toolkit's: in any other its timers cannot run, and on Windows a process has one.
    const std::unique_ptr<QThread> pThread(QThread::create(std::ref(task)));
    pThread->start();
    const auto waiting = qScopeGuard([&pThread] { pThread->wait(); });
    while (result.wait_for(PauseBetweenLooks) != std::future_status::ready)
    {
        const auto done = static_cast<std::size_t>(progress.GetShare() * Whole);
        if (monitor.Advance(done, Whole))
            continue;
        onCancelled();
        QApplication::processEvents();
    }
    result.get();
}

}

bool RunInBackground(QMainWindow& window, vesk::ProgressBarDefinition* pProgress,
                     const std::function<void(WorkProgress&)>& work)
{
    WorkProgress progress;
    bool isCancelled = false;
    ReadingMonitor monitor(window, pProgress);
    RunUnder(monitor, progress, work, [&] {
        isCancelled = true;
        progress.Cancel();
    });
    return !isCancelled;
}

void RunInBackground(ReadingMonitor& monitor, const std::function<void(WorkProgress&)>& work)
{
    WorkProgress progress;
    RunUnder(monitor, progress, work, [] {});
}
