#include "Support/Platform/BreakCounter.h"

#include <csignal>

namespace vesk::test
{
namespace
{

volatile std::sig_atomic_t s_count = 0;

}

BreakCounter::BreakCounter()
{
    s_count = 0;
    std::signal(SIGTRAP, [](int) { s_count = s_count + 1; });
}

BreakCounter::~BreakCounter()
{
    std::signal(SIGTRAP, SIG_DFL);
}

int BreakCounter::GetCount() const
{
    return s_count;
}

int GetExitCodeOfBreak()
{
    return SIGTRAP;
}

void EndQuietlyAtBreak() {}

}
