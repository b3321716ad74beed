#pragma once

#include "Foundation/HostExport.h"

#include <chrono>
#include <functional>

namespace vesk
{

/// What showing debug warnings needs from the event loop. Its operations raise no warning.
class VESK_HOST_API IDebugWarningScheduler
{
public:
    virtual ~IDebugWarningScheduler() = default;

    /// True when a dialog may be opened now: on the GUI thread, while nothing is being painted.
    /// Called from any thread.
    virtual bool IsDialogAllowed() const = 0;

    /// Calls `function` from the event loop. May be called from any thread.
    virtual void Post(std::function<void()> function) = 0;

    /// Calls `function` when the delay has passed and the event loop is idle. Called on the GUI
    /// thread.
    virtual void PostWhenIdle(std::chrono::milliseconds delay, std::function<void()> function) = 0;
};

}
