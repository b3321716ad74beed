#pragma once

#include "Command/IAction.h"
#include "Foundation/OwnerPtr.h"
#include "Graphics/IGraphicsNode.h"

#include "Dimension/ITemporaryDimensionContext.h"

#include <functional>
#include <vector>

namespace vesk::test
{

/// What an action was told, shared with the test: the action itself is the action manager's.
struct ActionLog
{
    std::vector<ActionViewInput> inputs;

    /// Called inside the next delivery of a typed value, once.
    std::function<void()> onInput;

    /// Makes the dimensions of each step; none without it.
    std::function<OwnerPtr<ITemporaryDimensionContext>()> createContext;
    int endCount = 0;
};

/// An action that goes on until it is ended and notes typed values.
class TestAction final : public IAction
{
public:
    explicit TestAction(ActionLog& log) : m_log(log) {}

    std::wstring GetViewText() const override { return L"test action"; }
    void OnBegin(IUiView*) override {}
    void OnMouseMove(const Vector3d&) override {}
    void OnClick(const Vector3d&) override {}
    void OnViewInput(const ActionViewInput& input, const TypedValue& typed) override;
    bool OnEscape() override { return false; }
    void OnEnd() override { ++m_log.endCount; }
    bool IsFinished() const override { return false; }
    OwnerPtr<ITemporaryDimensionContext> CreateDimensionContext() const override;
    OwnerPtr<IGraphicsNodeGroup> CreateRubberBand() const override { return nullptr; }
    bool ReplayPoint(const Vector3d&, const std::optional<int>&) override { return false; }
    bool ReplayValue(InputState, const std::wstring&, double) override { return false; }

private:
    ActionLog& m_log;
};

}
