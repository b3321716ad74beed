#pragma once

#include "Control/IControlDefinition.h"

namespace vesk
{

/// A button that sends a command.
class VESK_HOST_API ICommandButtonDefinition : public IControlDefinition
{
public:
    /// The command sent by a click.
    virtual const std::wstring& GetCommandId() const = 0;

    /// A path or resource name of the icon.
    virtual const std::wstring& GetIconPath() const = 0;

    /// 0 icon only, 1 text only, 2 text beside icon, 3 text under icon, 4 as set by the style.
    virtual int GetButtonStyle() const = 0;

    /// Sets whether the button looks pressed: by convention while the action of its command runs.
    virtual void SetChecked(bool isChecked) = 0;

    /// Whether the button looks pressed; initially false.
    virtual bool IsChecked() const = 0;
};

}
