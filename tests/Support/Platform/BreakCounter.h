#pragma once

namespace vesk::test
{

/// Counts breaks into the debugger during its lifetime, instead of ending the process. Only one at
/// a time.
class BreakCounter
{
public:
    BreakCounter();
    ~BreakCounter();
    BreakCounter(const BreakCounter&) = delete;
    BreakCounter& operator=(const BreakCounter&) = delete;

    int GetCount() const;
};

/// The exit code of a process that broke without a debugger, as QProcess reports it.
int GetExitCodeOfBreak();

/// Makes a break without a debugger end this process without any prompt.
void EndQuietlyAtBreak();

}
