#pragma once

#include "Control/IControlDefinition.h"

#include <string>
#include <vector>

namespace vesk
{

/// A list of texts, one of which is current.
class VESK_HOST_API IComboBoxDefinition : public IControlDefinition
{
public:
    /// The items from top to bottom.
    virtual std::vector<std::wstring> GetItems() const = 0;

    /// Makes an item current, -1 none. An index beyond the items is reported and changes nothing.
    virtual void SetCurrentIndex(int index) = 0;

    /// The current index, -1 if there is none.
    virtual int GetCurrentIndex() const = 0;
};

}
