#pragma once

#include "Control/ControlDefinition.h"
#include "Control/ICommandButtonDefinition.h"

namespace vesk
{

/// A command button. Initially enabled, unchecked, with its text under the icon.
class VESK_HOST_API CommandButtonDefinition : public ControlDefinition<ICommandButtonDefinition>
{
public:
    CommandButtonDefinition(std::wstring id, std::wstring commandId);

    const std::wstring& GetCommandId() const override;
    const std::wstring& GetIconPath() const override;
    int GetButtonStyle() const override;
    void SetChecked(bool isChecked) override;
    bool IsChecked() const override;

    void SetIconPath(const std::wstring& iconPath);
    void SetButtonStyle(int buttonStyle);

private:
    std::wstring m_commandId;
    std::wstring m_iconPath;
    int m_buttonStyle = 3;
    bool m_isChecked = false;
};

}
