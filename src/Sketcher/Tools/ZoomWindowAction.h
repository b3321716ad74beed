#pragma once

#include "Command/IAction.h"

#include <optional>

namespace vesk
{
class DrawingView;
}

/// Zooms to the box between two clicked corners.
class ZoomWindowAction final : public vesk::IAction
{
public:
    /// The view is not owned and outlives the action.
    explicit ZoomWindowAction(vesk::DrawingView& view);

    std::wstring GetViewText() const override;
    void OnBegin(vesk::IUiView* pView) override;
    void OnMouseMove(const vesk::Vector3d& world) override;
    void OnClick(const vesk::Vector3d& world) override;
    bool TakesPoint() const override { return true; }
    bool IsFinished() const override;
    vesk::OwnerPtr<vesk::IGraphicsNodeGroup> CreateRubberBand() const override;
    bool ReplayPoint(const vesk::Vector3d& world, const std::optional<int>& entity) override;

private:
    vesk::DrawingView& m_view;
    std::optional<vesk::Vector3d> m_corner;
    vesk::Vector3d m_cursor = vesk::Vector3d::Zero();
    bool m_isFinished = false;
};
