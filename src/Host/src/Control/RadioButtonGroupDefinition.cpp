#include "Control/RadioButtonGroupDefinition.h"

#include <utility>

namespace vesk
{

RadioButtonDefinition::RadioButtonDefinition(std::wstring id, const std::wstring& caption)
    : ControlDefinition(std::move(id))
{
    SetCaption(caption);
}

RadioButtonGroupDefinition::RadioButtonGroupDefinition(std::wstring id)
    : ControlDefinition(std::move(id))
{}

const std::vector<const IRadioButtonDefinition*>&
RadioButtonGroupDefinition::GetRadioButtonDefinitions() const
{
    return m_radioButtons.GetAll();
}

std::wstring RadioButtonGroupDefinition::GetCurrentRadioButtonId() const
{
    return m_currentRadioButtonId;
}

void RadioButtonGroupDefinition::SetCurrentRadioButtonId(const std::wstring& radioButtonId)
{
    Change(m_currentRadioButtonId, radioButtonId);
}

RadioButtonDefinition* RadioButtonGroupDefinition::Find(const std::wstring& radioButtonId) const
{
    return m_radioButtons.Find(radioButtonId);
}

void RadioButtonGroupDefinition::AddRadioButton(OwnerPtr<RadioButtonDefinition> opRadioButton)
{
    m_radioButtons.Insert(m_radioButtons.GetCount(), std::move(opRadioButton),
                          "vesk::RadioButtonGroupDefinition::AddRadioButton");
}

void RadioButtonGroupDefinition::InsertRadioButton(int index,
                                                   OwnerPtr<RadioButtonDefinition> opRadioButton)
{
    m_radioButtons.Insert(index, std::move(opRadioButton),
                          "vesk::RadioButtonGroupDefinition::InsertRadioButton");
}

void RadioButtonGroupDefinition::DeleteRadioButton(int index)
{
    const RadioButtonDefinition* pRadioButton = m_radioButtons.Get(index);
    if (pRadioButton != nullptr && pRadioButton->GetId() == m_currentRadioButtonId)
        m_currentRadioButtonId.clear();
    m_radioButtons.Delete(index, "vesk::RadioButtonGroupDefinition::DeleteRadioButton");
}

void RadioButtonGroupDefinition::ClearRadioButtons()
{
    if (Find(m_currentRadioButtonId) != nullptr)
        m_currentRadioButtonId.clear();
    m_radioButtons.Clear();
}

}
