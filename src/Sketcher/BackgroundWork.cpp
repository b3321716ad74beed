#include "BackgroundWork.h"

#include "ReadingMonitor.h"

#include <QApplication>

#include <chrono>
#include <cstddef>
#include <future>

bool RunInBackground(QMainWindow& window, vesk::ProgressBarDefinition* pProgress,
                     const std::function<void(WorkProgress&)>& work)
{
    constexpr std::chrono::milliseconds PauseBetweenLooks(10);
    constexpr std::size_t Whole = 1000;
    WorkProgress progress;
    bool isCancelled = false;
    std::future<void> result = std::async(std::launch::async, [&] { work(progress); });
    {
        ReadingMonitor monitor(window, pProgress);
        while (result.wait_for(PauseBetweenLooks) != std::future_status::ready)
        {
            const auto done = static_cast<std::size_t>(progress.GetShare() * Whole);
            isCancelled = !monitor.Advance(done, Whole);
            if (!isCancelled)
                continue;
            progress.Cancel();
            QApplication::processEvents();
        }
    }
    result.get();
    return !isCancelled;
}
