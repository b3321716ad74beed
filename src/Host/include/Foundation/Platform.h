#pragma once

#include "Foundation/HostExport.h"

namespace vesk
{

/// The current state of the process.
class VESK_HOST_API Platform
{
public:
    /// True from when the application object is installed until it is removed.
    static bool IsApplicationConstructed();
};

}
