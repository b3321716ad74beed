#pragma once

#include "Control/CheckBoxGroupDefinition.h"
#include "Control/ControlDefinitionChangeByUser.h"
#include "Control/RadioButtonGroupDefinition.h"
#include "Support/TestValues.h"

#include <string>
#include <vector>

namespace vesk::test
{

/// A check state that was written, and on whose behalf.
struct CheckStateWrite
{
    std::wstring id;
    int checkState;
    bool isByUser;

    bool operator==(const CheckStateWrite& other) const
    {
        return id == other.id && checkState == other.checkState && isByUser == other.isByUser;
    }
};

inline char* toString(const CheckStateWrite& write)
{
    return ShowFields(write.id, write.checkState, write.isByUser);
}

/// A current button that was written, on whose behalf, and whether the flag of the host was set.
struct CurrentIdWrite
{
    std::wstring id;
    bool isByUser;
    bool isFlagSet;

    bool operator==(const CurrentIdWrite& other) const
    {
        return id == other.id && isByUser == other.isByUser && isFlagSet == other.isFlagSet;
    }
};

inline char* toString(const CurrentIdWrite& write)
{
    return ShowFields(write.id, write.isByUser, write.isFlagSet);
}

/// Definitions of the host that record who writes.
struct NotingCheckBoxGroupDefinition : CheckBoxGroupDefinition
{
    using CheckBoxGroupDefinition::CheckBoxGroupDefinition;

    void SetCheckState(const std::wstring& checkBoxId, int checkState) override
    {
        writes.push_back(
            {checkBoxId, checkState, ControlDefinitionChangeByUser::IsChangeByUser(GetId())});
        CheckBoxGroupDefinition::SetCheckState(checkBoxId, checkState);
    }

    std::vector<CheckStateWrite> writes;
};

struct NotingRadioButtonGroupDefinition : RadioButtonGroupDefinition
{
    using RadioButtonGroupDefinition::RadioButtonGroupDefinition;

    void SetCurrentRadioButtonId(const std::wstring& radioButtonId) override
    {
        writes.push_back({radioButtonId, ControlDefinitionChangeByUser::IsChangeByUser(GetId()),
                          RadioButtonGroupStateChangeFlag::m_stateChangeByUser});
        RadioButtonGroupDefinition::SetCurrentRadioButtonId(radioButtonId);
    }

    std::vector<CurrentIdWrite> writes;
};

/// Definitions that hold and raise whatever a test wants, valid or not.
struct LooseCheckBoxGroupDefinition final : ControlDefinition<ICheckBoxGroupDefinition>
{
    LooseCheckBoxGroupDefinition() : ControlDefinition(L"Group.Id") {}

    const std::vector<const ICheckBoxDefinition*>& GetCheckBoxDefinitions() const override
    {
        return items;
    }
    void SetCheckState(const std::wstring&, int) override {}

    using ControlDefinition::GetEvent;
    std::vector<const ICheckBoxDefinition*> items;
};

struct LooseRadioButtonGroupDefinition final : ControlDefinition<IRadioButtonGroupDefinition>
{
    LooseRadioButtonGroupDefinition() : ControlDefinition(L"Group.Id") {}

    const std::vector<const IRadioButtonDefinition*>& GetRadioButtonDefinitions() const override
    {
        return items;
    }
    std::wstring GetCurrentRadioButtonId() const override { return currentId; }
    void SetCurrentRadioButtonId(const std::wstring&) override {}

    using ControlDefinition::GetEvent;
    std::vector<const IRadioButtonDefinition*> items;
    std::wstring currentId;
};

}
