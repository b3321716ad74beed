#include "Support/Platform/BreakCounter.h"

#include <windows.h>

namespace vesk::test
{
namespace
{

int s_count = 0;
void* s_pHandler = nullptr;

/// Continues after the one byte of the break.
LONG CALLBACK CountBreak(EXCEPTION_POINTERS* pException)
{
    if (pException->ExceptionRecord->ExceptionCode != EXCEPTION_BREAKPOINT)
        return EXCEPTION_CONTINUE_SEARCH;
    ++s_count;
    ++pException->ContextRecord->Rip;
    return EXCEPTION_CONTINUE_EXECUTION;
}

}

BreakCounter::BreakCounter()
{
    s_count = 0;
    s_pHandler = AddVectoredExceptionHandler(1, CountBreak);
}

BreakCounter::~BreakCounter()
{
    RemoveVectoredExceptionHandler(s_pHandler);
}

int BreakCounter::GetCount() const
{
    return s_count;
}

int GetExitCodeOfBreak()
{
    return static_cast<int>(STATUS_BREAKPOINT);
}

void EndQuietlyAtBreak()
{
    SetErrorMode(SEM_NOGPFAULTERRORBOX);
}

}
