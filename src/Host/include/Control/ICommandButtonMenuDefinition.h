#pragma once

#include "Control/IControlDefinition.h"

#include <string>
#include <vector>

namespace vesk
{

/// One entry of a menu.
class VESK_HOST_API IMenuItemDefinition : public IControlDefinition
{
public:
    /// A path or resource name of the icon; may be empty.
    virtual const std::wstring& GetIconPath() const = 0;
};

/// A menu entry that holds a sub-menu.
class VESK_HOST_API IMenuItemContainerDefinition : public IMenuItemDefinition
{
public:
    /// The entries of the sub-menu, owned by the container.
    virtual std::vector<const IMenuItemDefinition*> GetMenuItemDefinitions() const = 0;
};

/// A menu entry that sends a command.
class VESK_HOST_API ICommandMenuItemDefinition : public IMenuItemDefinition
{
public:
    /// The command that choosing the entry sends.
    virtual const std::wstring& GetCommandId() const = 0;
};

/// A button with a command of its own and a menu of further ones.
class VESK_HOST_API ICommandButtonMenuDefinition : public IControlDefinition
{
public:
    /// The command of the main part; empty if it has none.
    virtual const std::wstring& GetCommandId() const = 0;

    /// A path or resource name of the button's icon; may be empty.
    virtual const std::wstring& GetIconPath() const = 0;

    /// The entries of the menu, owned by the definition.
    virtual std::vector<const IMenuItemDefinition*> GetMenuItemDefinitions() const = 0;
};

}
