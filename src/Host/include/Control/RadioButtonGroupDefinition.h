#pragma once

#include "Control/ControlDefinition.h"
#include "Control/IRadioButtonGroupDefinition.h"
#include "Control/ItemDefinitionList.h"

namespace vesk
{

/// One button of a radio-button group.
class VESK_HOST_API RadioButtonDefinition : public ControlDefinition<IRadioButtonDefinition>
{
public:
    /// `id` never changes; it is the object name of the widget.
    RadioButtonDefinition(std::wstring id, const std::wstring& caption);
};

/// A radio-button group; initially empty. A change to a button is a property change of the group.
///
/// The current id may match no button: then none is checked. When the current button is removed,
/// none is current. An invalid index or a null button is reported and changes nothing.
class VESK_HOST_API RadioButtonGroupDefinition
    : public ControlDefinition<IRadioButtonGroupDefinition>
{
public:
    /// `id` never changes. The widgets are the buttons.
    explicit RadioButtonGroupDefinition(std::wstring id);

    const std::vector<const IRadioButtonDefinition*>& GetRadioButtonDefinitions() const override;
    std::wstring GetCurrentRadioButtonId() const override;
    void SetCurrentRadioButtonId(const std::wstring& radioButtonId) override;

    /// The button with that id, owned by the group; null if there is none.
    RadioButtonDefinition* Find(const std::wstring& radioButtonId) const;

    /// Appends a button.
    void AddRadioButton(OwnerPtr<RadioButtonDefinition> opRadioButton);

    /// Inserts a button before the one at `index`; at the end it is appended.
    void InsertRadioButton(int index, OwnerPtr<RadioButtonDefinition> opRadioButton);

    /// Removes a button and frees it once all handlers have been notified.
    void DeleteRadioButton(int index);

    /// Removes all buttons; does nothing if there are none.
    void ClearRadioButtons();

private:
    std::wstring m_currentRadioButtonId;
    ItemDefinitionList<RadioButtonDefinition, IRadioButtonDefinition> m_radioButtons{GetEvent()};
};

}
