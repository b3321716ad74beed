#pragma once

#include "Control/IControlDefinitionChangeEvent.h"

#include <algorithm>
#include <vector>

namespace vesk::test
{

/// Records for each change whether it was the user's.
struct ChangeNotes final : IControlDefinitionChangeEventHandler
{
    void On(IControlDefinitionChangeEventArgs* pArgs) override
    {
        isByUser.push_back(pArgs->IsChangeByUser());
    }

    int CountByUser() const
    {
        return static_cast<int>(std::count(isByUser.begin(), isByUser.end(), true));
    }

    std::vector<bool> isByUser;
};

}
