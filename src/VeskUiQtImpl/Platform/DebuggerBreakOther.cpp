#include "VeskUiQtImpl/Platform/DebuggerBreak.h"

#include <csignal>

namespace vesk
{

void BreakIntoDebugger()
{
    std::raise(SIGTRAP);
}

}
