#pragma once

#include "Foundation/HostExport.h"

namespace vesk
{

class IAction;

/// Gives access to the running action.
class VESK_HOST_API IActionManager
{
public:
    virtual ~IActionManager() = default;

    /// The running action, null if there is none. Not owned.
    static IAction* CurrentAction();
};

}
