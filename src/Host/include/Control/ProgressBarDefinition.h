#pragma once

#include "Control/ControlDefinition.h"
#include "Control/IProgressBarDefinition.h"

namespace vesk
{

/// A progress bar. Initially at 0, with its text visible, 100 pixels wide.
class VESK_HOST_API ProgressBarDefinition : public ControlDefinition<IProgressBarDefinition>
{
public:
    /// `id` never changes; it is the object name of the widget.
    explicit ProgressBarDefinition(std::wstring id);

    int GetValue() const override;
    bool IsTextVisible() const override;
    int GetWidth() const override;

    /// A value below 0 or above 100 is stored, but a bar does not show it.
    void SetValue(int value);

    /// Sets whether the value is shown as a text, too.
    void SetTextVisible(bool isTextVisible);

    /// In pixels.
    void SetWidth(int width);

private:
    int m_value = 0;
    bool m_isTextVisible = true;
    int m_width = 100;
};

}
