#pragma once

#include "Tools/DrawingAction.h"

#include "Model/PickingTool.h"
#include "Model/Shape.h"

#include <utility>
#include <vector>

/// Rotates the selected entities about a centre, from the direction of one point to that of
/// another, or by a typed angle; then it ends. The rotation is one undo step.
///
/// With nothing selected it first selects entities: each clicked entity is added, until a click
/// elsewhere sets the centre.
class RotateAction final : public DrawingAction, public IPickingTool
{
public:
    /// The workspace is not owned and outlives the action.
    explicit RotateAction(Workspace& workspace);

    std::wstring GetViewText() const override;
    void OnBegin(vesk::IUiView* pView) override;
    void OnMouseMove(const vesk::Vector3d& world) override;
    void OnClick(const vesk::Vector3d& world) override;
    bool IsFinished() const override;
    bool ReplayPoint(const vesk::Vector3d& world, const std::optional<int>& entity) override;
    vesk::OwnerPtr<vesk::ITemporaryDimensionContext> CreateDimensionContext() const override;
    vesk::OwnerPtr<vesk::IGraphicsNodeGroup> CreateRubberBand() const override;
    Click GetClick() const override;

protected:
    std::optional<vesk::Vector3d> GetStart() const override;
    vesk::Vector3d GetEnd() const override;
    bool RestsOnStart() const override;
    bool Expects(vesk::InputState field) const override;
    double ReadCursor(vesk::InputState field) const override;
    bool CanFinish(const vesk::Vector3d& end) const override;
    bool Finish(const vesk::Vector3d& end) override;

private:
    bool IsNothingSelected() const;
    bool TakesEntities() const;
    int PickOther(const vesk::Vector3d& world) const;
    bool Pick(const vesk::Vector3d& world, int entity);
    double GetAngleTo(const vesk::Vector3d& end) const;
    std::vector<std::pair<int, Shape>> MakeTurned(double degrees) const;

    std::optional<vesk::Vector3d> m_centre;
    std::optional<vesk::Vector3d> m_from;
    bool m_beganWithNothing = false;
    bool m_isFinished = false;

    /// The entity under the cursor, which a click would select; 0 for none.
    int m_hovered = 0;
};
