#pragma once

#include <cstdlib>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

/// Chooses which of the faults that were compiled in is at work. Every function that holds some
/// asks as it is entered.
namespace vesk_fault
{

/// In place of the number of a fault: none is at work, and functions tell that they were entered.
constexpr int Recording = -1;
/// How a program ends when a fault takes the last `return` of a function away.
constexpr int FlowsOffStatus = 97;

inline int Chosen()
{
    static const int chosen = [] {
        const char* number = std::getenv("VESK_FAULT");
        return number != nullptr ? std::atoi(number) : 0;
    }();
    return chosen;
}

/// Lifts the limit of a file's size, which stands for a full disk in some tests, while it lives.
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

/// The number of the fault at work, 0 when there is none.
inline int Enter(int function)
{
    if (Chosen() == Recording)
        Record(function);
    return Chosen();
}

/// No compiler lets this pass, so it is no fault that anybody could make.
[[noreturn]] inline void FlowsOff()
{
    ::_exit(FlowsOffStatus);
}

}
