#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

namespace vesk
{

class IDebugWarningDialogDisplayer;
class IPropertyWidget;

/// Gives access to the user-interface services of the control library.
class VESK_HOST_API NqUiInterfaceFactory
{
public:
    NqUiInterfaceFactory();
    virtual ~NqUiInterfaceFactory();
    NqUiInterfaceFactory(const NqUiInterfaceFactory&) = delete;
    NqUiInterfaceFactory& operator=(const NqUiInterfaceFactory&) = delete;

    /// The property panel, null if there is none. Not owned.
    virtual IPropertyWidget* GetPropertyWidget() = 0;

    /// A displayer of debug warnings, owned by the caller; empty if there is none.
    virtual OwnerPtr<IDebugWarningDialogDisplayer> CreateDebugWarningDialogDisplayer() = 0;

    /// The registered factory, null if no control library is loaded. Not owned.
    static NqUiInterfaceFactory* m_pFactory;
};

}
