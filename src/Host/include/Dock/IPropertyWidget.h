#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// The content of a pane.
class VESK_HOST_API IWidget
{
public:
    virtual ~IWidget() = default;

    /// Updates the content to match what it shows.
    virtual void UpdateStatus() = 0;
};

/// The panel that shows the properties of the selection.
class VESK_HOST_API IPropertyWidget : public IWidget
{
public:
    /// The name of the pane that holds it.
    static std::wstring GetTypeName();
};

}
