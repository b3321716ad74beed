#include "Control/CheckBoxGroupDefinition.h"

#include <utility>

namespace vesk
{

CheckBoxDefinition::CheckBoxDefinition(std::wstring id, const std::wstring& caption)
    : ControlDefinition(std::move(id))
{
    SetCaption(caption);
}

int CheckBoxDefinition::GetCheckState() const
{
    return m_checkState;
}

void CheckBoxDefinition::SetCheckState(int checkState)
{
    Change(m_checkState, checkState);
}

CheckBoxGroupDefinition::CheckBoxGroupDefinition(std::wstring id) : ControlDefinition(std::move(id))
{}

const std::vector<const ICheckBoxDefinition*>&
CheckBoxGroupDefinition::GetCheckBoxDefinitions() const
{
    return m_checkBoxes.GetAll();
}

void CheckBoxGroupDefinition::SetCheckState(const std::wstring& checkBoxId, int checkState)
{
    if (CheckBoxDefinition* pCheckBox = Find(checkBoxId))
        pCheckBox->SetCheckState(checkState);
}

CheckBoxDefinition* CheckBoxGroupDefinition::Find(const std::wstring& checkBoxId) const
{
    return m_checkBoxes.Find(checkBoxId);
}

void CheckBoxGroupDefinition::AddCheckBox(OwnerPtr<CheckBoxDefinition> opCheckBox)
{
    m_checkBoxes.Insert(m_checkBoxes.GetCount(), std::move(opCheckBox),
                        "vesk::CheckBoxGroupDefinition::AddCheckBox");
}

void CheckBoxGroupDefinition::InsertCheckBox(int index, OwnerPtr<CheckBoxDefinition> opCheckBox)
{
    m_checkBoxes.Insert(index, std::move(opCheckBox),
                        "vesk::CheckBoxGroupDefinition::InsertCheckBox");
}

void CheckBoxGroupDefinition::DeleteCheckBox(int index)
{
    m_checkBoxes.Delete(index, "vesk::CheckBoxGroupDefinition::DeleteCheckBox");
}

void CheckBoxGroupDefinition::ClearCheckBoxes()
{
    m_checkBoxes.Clear();
}

}
