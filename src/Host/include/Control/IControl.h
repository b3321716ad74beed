#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/WeakReferenceable.h"

namespace vesk
{

class IControlDefinition;

/// A control: shows a control definition.
class VESK_HOST_API IControl : public WeakReferenceable
{
public:
    virtual ~IControl();

    /// The definition shown; owned by the control, null if it was created without one.
    virtual IControlDefinition* GetControlDefinition() const = 0;

    /// Applies the definition's visibility and enabled state.
    virtual void UpdateStatus() = 0;
};

}
