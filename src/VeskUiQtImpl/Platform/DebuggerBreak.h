#pragma once

namespace vesk
{

/// Stops the process in the debugger that watches it; the debugger can let it go on. Without one
/// the operating system ends the process.
void BreakIntoDebugger();

}
