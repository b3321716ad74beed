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
    /// `commandId` is the command that choosing the entry sends.
    CommandMenuItemDefinition(std::wstring id, std::wstring commandId, const std::wstring& caption);

    const std::wstring& GetCommandId() const override;
    const std::wstring& GetIconPath() const override;

    /// Sets the icon: a file, or a Qt resource. A menu that shows the entry already does not
    /// follow.
    void SetIconPath(const std::wstring& iconPath);

private:
    std::wstring m_commandId;
    std::wstring m_iconPath;
};

/// A menu entry that holds further entries, to any depth. Fill it before adding it to a menu: a
/// control that shows a menu is notified only of changes to the menu's own entries.
class VESK_HOST_API MenuItemContainerDefinition
    : public ControlDefinition<IMenuItemContainerDefinition>
{
public:
    /// An entry that opens a sub-menu, which is initially empty.
    MenuItemContainerDefinition(std::wstring id, const std::wstring& caption);

    const std::wstring& GetIconPath() const override;
    std::vector<const IMenuItemDefinition*> GetMenuItemDefinitions() const override;

    /// Sets the icon: a file, or a Qt resource. A menu that shows the entry already does not
    /// follow.
    void SetIconPath(const std::wstring& iconPath);

    /// A null entry is reported and changes nothing.
    void AddMenuItem(OwnerPtr<IMenuItemDefinition> opMenuItem);

private:
    std::wstring m_iconPath;
    ItemDefinitionList<IMenuItemDefinition> m_menuItems{GetEvent()};
};

/// A button with a menu; the menu is initially empty. The control that shows it follows when
/// entries are added or inserted and when the menu is cleared; single entries cannot be removed.
///
/// An invalid index or a null entry is reported and changes nothing.
class VESK_HOST_API CommandButtonMenuDefinition
    : public ControlDefinition<ICommandButtonMenuDefinition>
{
public:
    /// `commandId` is the command of the main part; empty if it has none.
    CommandButtonMenuDefinition(std::wstring id, std::wstring commandId);

    const std::wstring& GetCommandId() const override;
    const std::wstring& GetIconPath() const override;
    std::vector<const IMenuItemDefinition*> GetMenuItemDefinitions() const override;

    /// Sets the icon of the button: a file, or a Qt resource.
    void SetIconPath(const std::wstring& iconPath);

    /// Appends an entry.
    void AddMenuItem(OwnerPtr<IMenuItemDefinition> opMenuItem);

    /// Inserts an entry before the one at `index`; at the end it is appended.
    void InsertMenuItem(int index, OwnerPtr<IMenuItemDefinition> opMenuItem);

    /// Removes all entries; does nothing if there are none.
    void ClearMenuItems();

private:
    std::wstring m_commandId;
    std::wstring m_iconPath;
    ItemDefinitionList<IMenuItemDefinition> m_menuItems{GetEvent()};
};

}
