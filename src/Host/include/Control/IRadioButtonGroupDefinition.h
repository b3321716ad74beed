#pragma once

#include "Control/IControlDefinition.h"

#include <string>
#include <vector>

namespace vesk
{

/// One button of a radio-button group; the group decides whether it is checked.
class VESK_HOST_API IRadioButtonDefinition : public IControlDefinition
{};

/// A group of buttons, one of which is checked.
class VESK_HOST_API IRadioButtonGroupDefinition : public IControlDefinition
{
public:
    /// The buttons in display order, owned by the group. The list itself is not copied: it changes
    /// with the buttons, and lives as long as the group.
    virtual const std::vector<const IRadioButtonDefinition*>& GetRadioButtonDefinitions() const = 0;

    /// The id of the checked button.
    virtual std::wstring GetCurrentRadioButtonId() const = 0;

    /// Checks the button with that id and no other. An id that no button has unchecks none on
    /// screen.
    virtual void SetCurrentRadioButtonId(const std::wstring& radioButtonId) = 0;
};

}
