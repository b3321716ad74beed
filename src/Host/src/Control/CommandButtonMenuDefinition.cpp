#include "Control/CommandButtonMenuDefinition.h"

#include <utility>

namespace vesk
{

CommandMenuItemDefinition::CommandMenuItemDefinition(std::wstring id, std::wstring commandId,
                                                     const std::wstring& caption)
    : ControlDefinition(std::move(id)), m_commandId(std::move(commandId))
{
    SetCaption(caption);
}

const std::wstring& CommandMenuItemDefinition::GetCommandId() const
{
    return m_commandId;
}

const std::wstring& CommandMenuItemDefinition::GetIconPath() const
{
    return m_iconPath;
}

void CommandMenuItemDefinition::SetIconPath(const std::wstring& iconPath)
{
    Change(m_iconPath, iconPath);
}

MenuItemContainerDefinition::MenuItemContainerDefinition(std::wstring id,
                                                         const std::wstring& caption)
    : ControlDefinition(std::move(id))
{
    SetCaption(caption);
}

const std::wstring& MenuItemContainerDefinition::GetIconPath() const
{
    return m_iconPath;
}

std::vector<const IMenuItemDefinition*> MenuItemContainerDefinition::GetMenuItemDefinitions() const
{
    return m_menuItems.GetAll();
}

void MenuItemContainerDefinition::SetIconPath(const std::wstring& iconPath)
{
    Change(m_iconPath, iconPath);
}

void MenuItemContainerDefinition::AddMenuItem(OwnerPtr<IMenuItemDefinition> opMenuItem)
{
    m_menuItems.Insert(m_menuItems.GetCount(), std::move(opMenuItem),
                       "vesk::MenuItemContainerDefinition::AddMenuItem");
}

CommandButtonMenuDefinition::CommandButtonMenuDefinition(std::wstring id, std::wstring commandId)
    : ControlDefinition(std::move(id)), m_commandId(std::move(commandId))
{}

const std::wstring& CommandButtonMenuDefinition::GetCommandId() const
{
    return m_commandId;
}

const std::wstring& CommandButtonMenuDefinition::GetIconPath() const
{
    return m_iconPath;
}

std::vector<const IMenuItemDefinition*> CommandButtonMenuDefinition::GetMenuItemDefinitions() const
{
    return m_menuItems.GetAll();
}

void CommandButtonMenuDefinition::SetIconPath(const std::wstring& iconPath)
{
    Change(m_iconPath, iconPath);
}

void CommandButtonMenuDefinition::AddMenuItem(OwnerPtr<IMenuItemDefinition> opMenuItem)
{
    m_menuItems.Insert(m_menuItems.GetCount(), std::move(opMenuItem),
                       "vesk::CommandButtonMenuDefinition::AddMenuItem");
}

void CommandButtonMenuDefinition::InsertMenuItem(int index,
                                                 OwnerPtr<IMenuItemDefinition> opMenuItem)
{
    m_menuItems.Insert(index, std::move(opMenuItem),
                       "vesk::CommandButtonMenuDefinition::InsertMenuItem");
}

void CommandButtonMenuDefinition::ClearMenuItems()
{
    m_menuItems.Clear();
}

}
