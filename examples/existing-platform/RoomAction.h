#pragma once

#include <Command/IAction.h>

#include <QRectF>

#include <functional>
#include <map>
#include <optional>

/// Draws one room: a corner, then its width and depth, typed or clicked.
class RoomAction final : public vesk::IAction
{
public:
    explicit RoomAction(std::function<void(const QRectF&)> draw);

    std::wstring GetViewText() const override;
    void OnBegin(vesk::IUiView*) override {}
    void OnEnd() override;
    void OnMouseMove(const vesk::Vector3d& world) override { m_cursor = world; }
    void OnClick(const vesk::Vector3d& world) override;
    bool IsFinished() const override { return m_isFinished; }

    vesk::OwnerPtr<vesk::IGraphicsNodeGroup> CreateRubberBand() const override;
    vesk::OwnerPtr<vesk::ITemporaryDimensionContext> CreateDimensionContext() const override;
    void OnViewInput(const vesk::ActionViewInput& input, const vesk::TypedValue& typed) override;
    void OnValueFreed(vesk::InputState field) override;

    bool ReplayPoint(const vesk::Vector3d&, const std::optional<int>&) override { return false; }

private:
    vesk::Vector3d GetOpposite() const;
    double GetSize(vesk::InputState field, double drawn) const;
    void Finish();

    std::function<void(const QRectF&)> m_draw;
    vesk::Vector3d m_cursor = vesk::Vector3d::Zero();
    std::optional<vesk::Vector3d> m_corner;
    std::map<vesk::InputState, double> m_typed;
    bool m_isFinished = false;
};
