#pragma once

#include "Control/ControlDefinition.h"
#include "Control/ICommandButtonMenuDefinition.h"
#include "Control/ItemDefinitionList.h"

namespace vesk
{

/// A menu entry that sends a command.
class VESK_HOST_API CommandMenuItemDefinition : public ControlDefinition<ICommandMenuItemDefinition>
{
public:
    CommandMenuItemDefinition(std::wstring id, std::wstring commandId, const std::wstring& caption);

    std::wstring GetCommandId() const override;
    std::wstring GetIconPath() const override;
    void SetIconPath(const std::wstring& iconPath);

private:
    std::wstring m_commandId;
    std::wstring m_iconPath;
};

/// A menu entry that holds further ones, to any depth. Filled before it is put into a menu: what
/// shows a menu hears of its own entries only.
class VESK_HOST_API MenuItemContainerDefinition
    : public ControlDefinition<IMenuItemContainerDefinition>
{
public:
    MenuItemContainerDefinition(std::wstring id, const std::wstring& caption);

    std::wstring GetIconPath() const override;
    std::vector<const IMenuItemDefinition*> GetMenuItemDefinitions() const override;
    void SetIconPath(const std::wstring& iconPath);

    /// A missing entry is reported and changes nothing.
    void AddMenuItem(OwnerPtr<IMenuItemDefinition> opMenuItem);

private:
    std::wstring m_iconPath;
    ItemDefinitionList<IMenuItemDefinition> m_menuItems{GetEvent()};
};

/// A button with a menu; the menu is empty at first. What shows it follows entries that are added
/// or inserted and a menu that is cleared; single entries do not go.
///
/// A bad index or a missing entry is reported and changes nothing.
class VESK_HOST_API CommandButtonMenuDefinition
    : public ControlDefinition<ICommandButtonMenuDefinition>
{
public:
    /// `commandId` is the command of the main part; empty when it has none.
    CommandButtonMenuDefinition(std::wstring id, std::wstring commandId);

    std::wstring GetCommandId() const override;
    std::wstring GetIconPath() const override;
    std::vector<const IMenuItemDefinition*> GetMenuItemDefinitions() const override;
    void SetIconPath(const std::wstring& iconPath);

    void AddMenuItem(OwnerPtr<IMenuItemDefinition> opMenuItem);

    /// Puts an entry before the one at `index`; at the end it is an appended one.
    void InsertMenuItem(int index, OwnerPtr<IMenuItemDefinition> opMenuItem);
    void ClearMenuItems();

private:
    std::wstring m_commandId;
    std::wstring m_iconPath;
    ItemDefinitionList<IMenuItemDefinition> m_menuItems{GetEvent()};
};

}
