#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/IApplication.h"

namespace vesk
{

/// Asks every control to refresh its status.
///
/// Any number of these events pending at the same time refresh the controls once, when the last of
/// them is emitted.
class VESK_HOST_API UpdateCtrlStatusEvent : public IApplicationEvent
{
public:
    UpdateCtrlStatusEvent();
    ~UpdateCtrlStatusEvent() override;
    UpdateCtrlStatusEvent(const UpdateCtrlStatusEvent&) = delete;
    UpdateCtrlStatusEvent& operator=(const UpdateCtrlStatusEvent&) = delete;

    void Emit() override;

private:
    bool m_isWaiting = true;
};

/// Refreshes controls on an UpdateCtrlStatusEvent; only one instance is installed at a time.
class VESK_HOST_API IControlStatusRefresher
{
public:
    virtual ~IControlStatusRefresher() = default;

    /// Updates every control to its definition's visibility and enabled state.
    virtual void RefreshControls() = 0;

    /// Installs the refresher; null removes it. Not owned.
    static void Set(IControlStatusRefresher* pRefresher);
};

}
