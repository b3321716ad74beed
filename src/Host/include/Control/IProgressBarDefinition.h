#pragma once

#include "Control/IControlDefinition.h"

namespace vesk
{

/// The progress of a task.
class VESK_HOST_API IProgressBarDefinition : public IControlDefinition
{
public:
    /// 0 to 100.
    virtual int GetValue() const = 0;

    /// Whether the value is shown as a text, too.
    virtual bool IsTextVisible() const = 0;

    /// Width in pixels.
    virtual int GetWidth() const = 0;
};

}
