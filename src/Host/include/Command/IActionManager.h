#pragma once

#include "Foundation/HostExport.h"

namespace vesk
{

class IAction;

/// What is known of the running action.
class VESK_HOST_API IActionManager
{
public:
    virtual ~IActionManager() = default;

    /// The running action, null when none runs. Not owned.
    static IAction* CurrentAction();
};

}
