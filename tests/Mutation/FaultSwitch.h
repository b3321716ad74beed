#pragma once

#include <cstdlib>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

/// Selects which of the compiled-in faults is active. Every function that contains faults queries
/// it on entry.
namespace vesk_fault
{

/// In place of a fault number: no fault is active, and functions record that they were entered.
constexpr int Recording = -1;
/// The exit status of a program in which a fault removes the last `return` of a function.
constexpr int FlowsOffStatus = 97;

inline int Chosen()
{
    static const int chosen = [] {
        const char* number = std::getenv("VESK_FAULT");
        return number != nullptr ? std::atoi(number) : 0;
    }();
    return chosen;
}

/// Lifts the file size limit, which simulates a full disk in some tests, during its lifetime.
class NoFileSizeLimit
{
public:
    NoFileSizeLimit()
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit none{m_before.rlim_max, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &none);
    }
    ~NoFileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &m_before); }
    NoFileSizeLimit(const NoFileSizeLimit&) = delete;
    NoFileSizeLimit& operator=(const NoFileSizeLimit&) = delete;

private:
    rlimit m_before{};
};

/// Appends the number of a function to VESK_FAULT_RECORD, once, without allocating.
inline void Record(int function)
{
    static bool isRecorded[1 << 16] = {};
    const char* path = std::getenv("VESK_FAULT_RECORD");
    if (path == nullptr || isRecorded[function])
        return;
    isRecorded[function] = true;
    const NoFileSizeLimit unlimited;
    const int file = ::open(path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    [[maybe_unused]] const auto written = ::write(file, &function, sizeof function);
    ::close(file);
}

/// The number of the active fault; 0 if there is none.
inline int Enter(int function)
{
    if (Chosen() == Recording)
        Record(function);
    return Chosen();
}

/// No compiler accepts such code without a warning, so it is not a fault anybody could make.
[[noreturn]] inline void FlowsOff()
{
    ::_exit(FlowsOffStatus);
}

}
