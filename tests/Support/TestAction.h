#pragma once

#include "Foundation/OwnerPtr.h"
#include "Support/IdleAction.h"

#include "Dimension/ITemporaryDimensionContext.h"

#include <functional>
#include <vector>

namespace vesk::test
{

/// What an action was told, shared with the test: the action itself belongs to the action manager.
struct ActionLog
{
    std::vector<ActionViewInput> inputs;

    /// Called once, inside the next delivery of a typed value.
    std::function<void()> onInput;

    /// Creates the dimensions of each step; without it there are none.
    std::function<OwnerPtr<ITemporaryDimensionContext>()> createContext;
    int endCount = 0;
};

/// An action that continues until it is ended and records typed values.
class TestAction final : public IdleAction
{
public:
    explicit TestAction(ActionLog& log) : m_log(log) {}

    std::wstring GetViewText() const override { return L"test action"; }
    void OnViewInput(const ActionViewInput& input, const TypedValue& typed) override;
    void OnEnd() override { ++m_log.endCount; }
    OwnerPtr<ITemporaryDimensionContext> CreateDimensionContext() const override;

private:
    ActionLog& m_log;
};

}
