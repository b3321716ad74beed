#pragma once

namespace vesk::test
{

/// Counts the breaks into a debugger, while it lives, instead of ending the process. One at a time.
class BreakCounter
{
public:
    BreakCounter();
    ~BreakCounter();
    BreakCounter(const BreakCounter&) = delete;
    BreakCounter& operator=(const BreakCounter&) = delete;

    int GetCount() const;
};

/// The exit code of a process that broke without a debugger, as QProcess tells it.
int GetExitCodeOfBreak();

/// Has a break without a debugger end this process without anybody being asked.
void EndQuietlyAtBreak();

}
