#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

namespace vesk
{

class IDebugWarningDialogDisplayer;
class IPropertyWidget;

/// The door to the user-interface services of the control library.
class VESK_HOST_API NqUiInterfaceFactory
{
public:
    NqUiInterfaceFactory();
    virtual ~NqUiInterfaceFactory();
    NqUiInterfaceFactory(const NqUiInterfaceFactory&) = delete;
    NqUiInterfaceFactory& operator=(const NqUiInterfaceFactory&) = delete;

    /// The property panel, null when there is none. Not owned.
    virtual IPropertyWidget* GetPropertyWidget() = 0;

    /// A displayer of debug warnings, owned by the caller; empty when there is none.
    virtual OwnerPtr<IDebugWarningDialogDisplayer> CreateDebugWarningDialogDisplayer() = 0;

    /// The registered factory, null when no control library is loaded. Not owned.
    static NqUiInterfaceFactory* m_pFactory;
};

}
