#pragma once

#include "Command/IAction.h"

namespace vesk::test
{

/// An action that does nothing and continues until it is ended. Test doubles override what they
/// need.
class IdleAction : public IAction
{
public:
    std::wstring GetViewText() const override { return {}; }
    void OnBegin(IUiView*) override {}
    void OnMouseMove(const Vector3d&) override {}
    void OnClick(const Vector3d&) override {}
    bool ReplayPoint(const Vector3d&, const std::optional<int>&) override { return false; }
};

}
