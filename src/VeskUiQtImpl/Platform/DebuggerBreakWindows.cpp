#include "VeskUiQtImpl/Platform/DebuggerBreak.h"

#include <windows.h>

namespace vesk
{

void BreakIntoDebugger()
{
    DebugBreak();
}

}
