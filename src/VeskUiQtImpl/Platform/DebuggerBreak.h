#pragma once

namespace vesk
{

/// Stops the process in the attached debugger, which can resume it. Without a debugger the
/// operating system terminates the process.
void BreakIntoDebugger();

}
