#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// Describes one control of the user interface, independently of its widget.
class VESK_HOST_API IControlDefinition
{
public:
    virtual ~IControlDefinition() = default;

    /// Identifies the definition; never changes.
    virtual std::wstring GetId() const = 0;
    virtual std::wstring GetCaption() const = 0;
    virtual std::wstring GetTooltip() const = 0;
    virtual bool IsVisible() const = 0;
    virtual bool IsEnabled() const = 0;
};

}
