#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/WeakReferenceable.h"

namespace vesk
{

class IControlDefinition;

/// What shows a control definition.
class VESK_HOST_API IControl : public WeakReferenceable
{
public:
    virtual ~IControl();

    /// The definition shown; owned by the control, null when it was made without one.
    virtual IControlDefinition* GetControlDefinition() const = 0;

    /// Takes visibility and enabled state over from the definition.
    virtual void UpdateStatus() = 0;
};

}
