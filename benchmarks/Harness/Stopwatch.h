#pragma once

/// What a stretch of work took.
struct Measurement
{
    double milliseconds = 0; ///< Of this thread's CPU time.
    long allocations = 0;    ///< How often heap memory was asked for, also to grow a block.
    long bytes = 0;          ///< Heap memory that was kept: taken less given back.
    long peak = 0;           ///< The most that was kept at any moment, in one stretch.
};

/// Measures a stretch of work in this thread; under callgrind, also counts its instructions.
class Stopwatch
{
public:
    /// Calls `work` and adds what it took. What stands outside, preparation and clean-up, is not
    /// measured.
    template <typename Work>
    void Time(Work&& work)
    {
        Start();
        work();
        Stop();
    }

    /// Adds CPU time that was measured otherwise: that of another process.
    void Add(double milliseconds) { m_sum.milliseconds += milliseconds; }

    const Measurement& Get() const { return m_sum; }

private:
    void Start();
    void Stop();

    Measurement m_sum;
    Measurement m_start;
};
