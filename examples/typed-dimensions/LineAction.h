#pragma once

#include "Line.h"

#include <Command/IAction.h>

#include <functional>
#include <map>
#include <optional>

/// Draws lines until the user ends it. A line begins where the user clicks, and ends at a second
/// click or at a typed length and angle; what is not typed follows the cursor.
class LineAction final : public vesk::IAction
{
public:
    /// `draw` is called with each finished line.
    explicit LineAction(std::function<void(const Line&)> draw);

    std::wstring GetViewText() const override;
    void OnBegin(vesk::IUiView* pView) override;
    void OnEnd() override;

    void OnMouseMove(const vesk::Vector3d& world) override;
    void OnClick(const vesk::Vector3d& world) override;

    vesk::OwnerPtr<vesk::IGraphicsNodeGroup> CreateRubberBand() const override;
    vesk::OwnerPtr<vesk::ITemporaryDimensionContext> CreateDimensionContext() const override;

    void OnViewInput(const vesk::ActionViewInput& input, const vesk::TypedValue& typed) override;
    void OnValueFreed(vesk::InputState field) override;
    bool OnEscape() override;

    bool ReplayPoint(const vesk::Vector3d& world, const std::optional<int>& entity) override;
    bool ReplayValue(vesk::InputState field, const std::wstring& text, double value) override;

private:
    vesk::Vector3d GetEnd() const;
    double GetPixel() const;
    void Lock(vesk::InputState field, const std::wstring& text, double value);
    void Unlock(vesk::InputState field);
    void UnlockAll();
    void EndStep(const vesk::Vector3d& point);

    std::function<void(const Line&)> m_draw;
    vesk::IUiView* m_pView = nullptr;
    vesk::Vector3d m_cursor = vesk::Vector3d::Zero();
    std::optional<vesk::Vector3d> m_start;

    /// The values typed for this line: its length in millimetres, its angle in degrees.
    std::map<vesk::InputState, double> m_locked;
};
