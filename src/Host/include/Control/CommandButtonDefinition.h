#pragma once

#include "Control/ControlDefinition.h"
#include "Control/ICommandButtonDefinition.h"

namespace vesk
{

/// A command button. Initially enabled, unchecked, with its text under the icon.
class VESK_HOST_API CommandButtonDefinition : public ControlDefinition<ICommandButtonDefinition>
{
public:
    /// `id` is the object name of the widget, `commandId` the command that a click sends.
    CommandButtonDefinition(std::wstring id, std::wstring commandId);

    const std::wstring& GetCommandId() const override;
    const std::wstring& GetIconPath() const override;
    int GetButtonStyle() const override;
    void SetChecked(bool isChecked) override;
    bool IsChecked() const override;

    /// Sets the icon: a file, or a Qt resource.
    void SetIconPath(const std::wstring& iconPath);

    /// Sets the style (see ICommandButtonDefinition::GetButtonStyle); any other number counts as 3.
    void SetButtonStyle(int buttonStyle);

private:
    std::wstring m_commandId;
    std::wstring m_iconPath;
    int m_buttonStyle = 3;
    bool m_isChecked = false;
};

}
