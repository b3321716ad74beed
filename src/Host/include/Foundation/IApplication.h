#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

namespace vesk
{

class IApplicationWindow;

/// Something that is to happen when the event loop comes round.
class VESK_HOST_API IApplicationEvent
{
public:
    virtual ~IApplicationEvent() = default;

    /// Does it. Called once, on the GUI thread.
    virtual void Emit() = 0;
};

/// The running application.
class VESK_HOST_API IApplication
{
public:
    /// The installed application, null before and after.
    static IApplication* Get();

    virtual ~IApplication() = default;

    /// Takes the event and emits it from the event loop, in order with the window system's posted
    /// events. An event still waiting when the application ends is freed unemitted.
    virtual void PostEvent(OwnerPtr<IApplicationEvent> opEvent) = 0;

    /// The application's window, null when it has none. Not owned.
    virtual IApplicationWindow* GetMainWindow() const = 0;

protected:
    /// Installs the application; null removes it. Not owned.
    static void Set(IApplication* pApplication);
};

}
