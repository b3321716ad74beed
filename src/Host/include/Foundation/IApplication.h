#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

namespace vesk
{

class IApplicationWindow;

/// Something to be done from the event loop.
class VESK_HOST_API IApplicationEvent
{
public:
    virtual ~IApplicationEvent() = default;

    /// Does the work. Called once, on the GUI thread.
    virtual void Emit() = 0;
};

/// The running application.
class VESK_HOST_API IApplication
{
public:
    /// The installed application, null if none is installed.
    static IApplication* Get();

    virtual ~IApplication() = default;

    /// Takes ownership of the event and emits it from the event loop, in order with the window
    /// system's posted events. An event that is still pending when the application ends is freed
    /// without being emitted.
    virtual void PostEvent(OwnerPtr<IApplicationEvent> opEvent) = 0;

    /// The application's window, null if there is none. Not owned.
    virtual IApplicationWindow* GetMainWindow() const = 0;

protected:
    /// Installs the application; null removes it. Not owned.
    static void Set(IApplication* pApplication);
};

}
