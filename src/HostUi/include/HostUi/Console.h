#pragma once

#include "HostUi/HostUiExport.h"

namespace vesk
{

/// Lets a program with windows write to the console from which it was started. Windows gives such
/// programs none, so that starting one elsewhere opens no empty console; on other systems, and
/// where the output already goes to a file or a pipe, nothing changes.
VESK_HOST_UI_API void WriteToParentConsole();

}
