#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// Describes one control of the user interface, independently of its widget.
///
/// A text returned by reference, here and by the kinds of definition, is the definition's own: it
/// stays valid until the definition changes or is destroyed. Who calls something in between that
/// may change it takes a copy.
class VESK_HOST_API IControlDefinition
{
public:
    virtual ~IControlDefinition() = default;

    /// Identifies the definition; never changes.
    virtual const std::wstring& GetId() const = 0;

    /// The text shown on the control, in the user's language; may be empty.
    virtual const std::wstring& GetCaption() const = 0;

    /// The tool tip, in the user's language; empty for none.
    virtual const std::wstring& GetTooltip() const = 0;

    /// Whether the control is to be shown.
    virtual bool IsVisible() const = 0;

    /// Whether the user can use the control.
    virtual bool IsEnabled() const = 0;
};

}
