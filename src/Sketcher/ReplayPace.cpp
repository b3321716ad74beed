#include "ReplayPace.h"

#include "Journal/JournalRecord.h"

#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <limits>

using namespace vesk;

namespace
{

/// Lets events be handled for that long, or for a moment if that is shorter.
void HandleEvents(qint64 milliseconds)
{
    constexpr qint64 Moment = 20;
    QEventLoop loop;
    QTimer::singleShot(static_cast<int>(std::min(milliseconds, Moment)), &loop, &QEventLoop::quit);
    loop.exec();
}

}

ReplayPace::ReplayPace(const std::vector<JournalRecord>& records)
{
    int elapsed = 0;
    int lastTime = 0;
    for (std::size_t i = 0; i < records.size(); ++i)
    {
        const auto* pMark = std::get_if<MarkRecord>(&records[i].what);
        if (pMark == nullptr || !pMark->time.has_value())
            continue;
        // Each sitting counts from its own begin.
        const int time = std::max(*pMark->time, 0);
        const int passed = time < lastTime ? time : time - lastTime;
        elapsed += std::min(passed, std::numeric_limits<int>::max() - elapsed);
        lastTime = time;
        m_due.resize(i + 1, elapsed);
    }
    m_due.resize(records.size(), elapsed);
}

bool ReplayPace::WaitFor(std::size_t index, const std::function<bool()>& goOn)
{
    if (!m_sinceBegin.isValid())
        m_sinceBegin.start();
    while (goOn())
    {
        const qint64 missing = GetDue(index) - m_sinceBegin.elapsed();
        if (missing <= 0)
            return true;
        HandleEvents(missing);
    }
    return false;
}
