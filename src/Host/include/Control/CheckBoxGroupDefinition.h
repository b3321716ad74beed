#pragma once

#include "Control/ControlDefinition.h"
#include "Control/ICheckBoxGroupDefinition.h"
#include "Control/ItemDefinitionList.h"

namespace vesk
{

/// One box of a check-box group. At first unchecked.
class VESK_HOST_API CheckBoxDefinition : public ControlDefinition<ICheckBoxDefinition>
{
public:
    CheckBoxDefinition(std::wstring id, const std::wstring& caption);

    int GetCheckState() const override;

    /// 0 unchecked, any other value checked; kept as it is given.
    void SetCheckState(int checkState);

private:
    int m_checkState = 0;
};

/// A check-box group; empty at first. A change of a box is a property change of the group.
///
/// A bad index or a missing box is reported and changes nothing.
class VESK_HOST_API CheckBoxGroupDefinition : public ControlDefinition<ICheckBoxGroupDefinition>
{
public:
    explicit CheckBoxGroupDefinition(std::wstring id);

    std::vector<const ICheckBoxDefinition*> GetCheckBoxDefinitions() const override;
    void SetCheckState(const std::wstring& checkBoxId, int checkState) override;

    /// The box with that id, owned by the group; null when there is none.
    CheckBoxDefinition* Find(const std::wstring& checkBoxId) const;

    void AddCheckBox(OwnerPtr<CheckBoxDefinition> opCheckBox);

    /// Puts a box before the one at `index`; at the end it is an appended one.
    void InsertCheckBox(int index, OwnerPtr<CheckBoxDefinition> opCheckBox);
    void DeleteCheckBox(int index);
    void ClearCheckBoxes();

private:
    ItemDefinitionList<CheckBoxDefinition> m_checkBoxes{GetEvent()};
};

}
