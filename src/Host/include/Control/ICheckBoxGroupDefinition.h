#pragma once

#include "Control/IControlDefinition.h"

#include <string>
#include <vector>

namespace vesk
{

/// One box of a check-box group.
class VESK_HOST_API ICheckBoxDefinition : public IControlDefinition
{
public:
    /// 0 unchecked, any other value checked.
    virtual int GetCheckState() const = 0;
};

/// Check boxes that are independent of each other.
class VESK_HOST_API ICheckBoxGroupDefinition : public IControlDefinition
{
public:
    /// The boxes in display order, owned by the group. The list itself is not copied: it changes
    /// with the boxes, and lives as long as the group.
    virtual const std::vector<const ICheckBoxDefinition*>& GetCheckBoxDefinitions() const = 0;

    /// Sets the state of the box with that id; an unknown id changes nothing.
    virtual void SetCheckState(const std::wstring& checkBoxId, int checkState) = 0;
};

}
