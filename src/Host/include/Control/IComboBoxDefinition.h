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
    virtual std::vector<std::wstring> GetItems() const = 0;
    virtual void SetCurrentIndex(int index) = 0;

    /// The current index, -1 if there is none.
    virtual int GetCurrentIndex() const = 0;
};

}
