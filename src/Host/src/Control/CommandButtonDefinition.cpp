#include "Control/CommandButtonDefinition.h"

#include <utility>

namespace vesk
{

CommandButtonDefinition::CommandButtonDefinition(std::wstring id, std::wstring commandId)
    : ControlDefinition(std::move(id)), m_commandId(std::move(commandId))
{}

const std::wstring& CommandButtonDefinition::GetCommandId() const
{
    return m_commandId;
}

const std::wstring& CommandButtonDefinition::GetIconPath() const
{
    return m_iconPath;
}

int CommandButtonDefinition::GetButtonStyle() const
{
    return m_buttonStyle;
}

void CommandButtonDefinition::SetChecked(bool isChecked)
{
    Change(m_isChecked, isChecked);
}

bool CommandButtonDefinition::IsChecked() const
{
    return m_isChecked;
}

void CommandButtonDefinition::SetIconPath(const std::wstring& iconPath)
{
    Change(m_iconPath, iconPath);
}

void CommandButtonDefinition::SetButtonStyle(int buttonStyle)
{
    Change(m_buttonStyle, buttonStyle);
}

}
