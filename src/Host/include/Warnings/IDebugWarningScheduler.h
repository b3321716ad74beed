#pragma once

#include "Foundation/HostExport.h"

#include <chrono>
#include <functional>

namespace vesk
{

/// What showing debug warnings needs of the event loop. Its operations raise no warning.
class VESK_HOST_API IDebugWarningScheduler
{
public:
    virtual ~IDebugWarningScheduler() = default;

    /// True where a dialog may be opened at this moment: on the GUI thread, while nothing is being
    /// painted. Called from any thread.
    virtual bool IsDialogAllowed() const = 0;

    /// Has `function` called from the event loop. Called from any thread.
    virtual void Post(std::function<void()> function) = 0;

    /// Has `function` called when that much time has passed and the event loop is idle. Called on
    /// the GUI thread.
    virtual void PostWhenIdle(std::chrono::milliseconds delay, std::function<void()> function) = 0;
};

}
