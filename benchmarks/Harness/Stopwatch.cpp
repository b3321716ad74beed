#include "Stopwatch.h"

#include "HeapCounter.h"

#include <valgrind/callgrind.h>

#include <algorithm>
#include <ctime>

namespace
{

double ThreadMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

}

void Stopwatch::Start()
{
    HeapCounter::ResetPeak();
    m_start = {0, HeapCounter::Allocations(), HeapCounter::Bytes()};
    CALLGRIND_START_INSTRUMENTATION;
    m_start.milliseconds = ThreadMilliseconds();
}

void Stopwatch::Stop()
{
    const double end = ThreadMilliseconds();
    CALLGRIND_STOP_INSTRUMENTATION;
    m_sum.milliseconds += end - m_start.milliseconds;
    m_sum.allocations += HeapCounter::Allocations() - m_start.allocations;
    m_sum.bytes += HeapCounter::Bytes() - m_start.bytes;
    m_sum.peak = std::max(m_sum.peak, HeapCounter::PeakBytes() - m_start.bytes);
}
