#include "Control/ProgressBarDefinition.h"

#include <utility>

namespace vesk
{

ProgressBarDefinition::ProgressBarDefinition(std::wstring id) : ControlDefinition(std::move(id)) {}

int ProgressBarDefinition::GetValue() const
{
    return m_value;
}

bool ProgressBarDefinition::IsTextVisible() const
{
    return m_isTextVisible;
}

int ProgressBarDefinition::GetWidth() const
{
    return m_width;
}

void ProgressBarDefinition::SetValue(int value)
{
    Change(m_value, value);
}

void ProgressBarDefinition::SetTextVisible(bool isTextVisible)
{
    Change(m_isTextVisible, isTextVisible);
}

void ProgressBarDefinition::SetWidth(int width)
{
    Change(m_width, width);
}

}
