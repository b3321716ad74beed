#pragma once

#include "Foundation/HostExport.h"

namespace vesk
{

/// What the process can do at this moment.
class VESK_HOST_API Platform
{
public:
    /// True from the installation of the application object to its removal.
    static bool IsApplicationConstructed();
};

}
