#pragma once

#include "Control/ControlDefinition.h"
#include "Control/ICheckBoxGroupDefinition.h"
#include "Control/ItemDefinitionList.h"

namespace vesk
{

/// One box of a check-box group. Initially unchecked.
class VESK_HOST_API CheckBoxDefinition : public ControlDefinition<ICheckBoxDefinition>
{
public:
    /// An unchecked box. `id` never changes; it is the object name of the widget.
    CheckBoxDefinition(std::wstring id, const std::wstring& caption);

    int GetCheckState() const override;

    /// 0 unchecked, any other value checked; stored as given.
    void SetCheckState(int checkState);

private:
    int m_checkState = 0;
};

/// A check-box group; initially empty. A change to a box is a property change of the group.
///
/// An invalid index or a null box is reported and changes nothing.
class VESK_HOST_API CheckBoxGroupDefinition : public ControlDefinition<ICheckBoxGroupDefinition>
{
public:
    /// `id` never changes. The widgets are the boxes.
    explicit CheckBoxGroupDefinition(std::wstring id);

    const std::vector<const ICheckBoxDefinition*>& GetCheckBoxDefinitions() const override;
    void SetCheckState(const std::wstring& checkBoxId, int checkState) override;

    /// The box with that id, owned by the group; null if there is none.
    CheckBoxDefinition* Find(const std::wstring& checkBoxId) const;

    /// Appends a box.
    void AddCheckBox(OwnerPtr<CheckBoxDefinition> opCheckBox);

    /// Inserts a box before the one at `index`; at the end it is appended.
    void InsertCheckBox(int index, OwnerPtr<CheckBoxDefinition> opCheckBox);

    /// Removes a box and frees it once all handlers have been notified.
    void DeleteCheckBox(int index);

    /// Removes all boxes; does nothing if there are none.
    void ClearCheckBoxes();

private:
    ItemDefinitionList<CheckBoxDefinition, ICheckBoxDefinition> m_checkBoxes{GetEvent()};
};

}
