#pragma once

#include "Control/ComboBoxDefinition.h"
#include "Control/ControlDefinitionChangeByUser.h"
#include "Support/TestValues.h"

#include <string>
#include <vector>

namespace vesk::test
{

/// A current index that was written, and on whose behalf.
struct IndexWrite
{
    int index;
    bool isByUser;

    bool operator==(const IndexWrite& other) const
    {
        return index == other.index && isByUser == other.isByUser;
    }
};

inline char* toString(const IndexWrite& write)
{
    return ShowFields(write.index, write.isByUser);
}

/// A combo-box definition of the host that records who writes its index.
struct NotingComboBoxDefinition : ComboBoxDefinition
{
    using ComboBoxDefinition::ComboBoxDefinition;

    void SetCurrentIndex(int index) override
    {
        writes.push_back({index, ControlDefinitionChangeByUser::IsChangeByUser(GetId())});
        ComboBoxDefinition::SetCurrentIndex(index);
    }

    std::vector<IndexWrite> writes;
};

/// A combo-box definition that holds whatever it is given: its index does not follow its items.
struct LooseComboBoxDefinition final : ControlDefinition<IComboBoxDefinition>
{
    LooseComboBoxDefinition() : ControlDefinition(L"Box.Id") {}

    std::vector<std::wstring> GetItems() const override { return items; }
    int GetCurrentIndex() const override { return currentIndex; }
    void SetCurrentIndex(int index) override
    {
        writes.push_back({index, ControlDefinitionChangeByUser::IsChangeByUser(GetId())});
        currentIndex = index;
    }

    void Raise(int type, int index = -1, const std::wstring& caption = {})
    {
        GetEvent().RaiseItemsChanged(type, index, caption, nullptr);
    }

    std::vector<std::wstring> items;
    int currentIndex = -1;
    std::vector<IndexWrite> writes;
};

}
