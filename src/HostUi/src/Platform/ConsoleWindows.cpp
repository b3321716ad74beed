#include "HostUi/Console.h"

#include <windows.h>

#include <cstdio>

namespace vesk
{
namespace
{

bool IsConnected(DWORD stream)
{
    HANDLE handle = ::GetStdHandle(stream);
    return handle != nullptr && handle != INVALID_HANDLE_VALUE;
}

}

void WriteToParentConsole()
{
    const bool hasOutput = IsConnected(STD_OUTPUT_HANDLE);
    const bool hasErrors = IsConnected(STD_ERROR_HANDLE);
    if ((hasOutput && hasErrors) || ::AttachConsole(ATTACH_PARENT_PROCESS) == 0)
        return;
    // Without a console to write to, the streams stay closed.
    if (!hasOutput && std::freopen("CONOUT$", "w", stdout) == nullptr)
        std::clearerr(stdout);
    if (!hasErrors && std::freopen("CONOUT$", "w", stderr) == nullptr)
        std::clearerr(stderr);
}

}
