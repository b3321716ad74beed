#pragma once

#include "Tools/DrawingAction.h"

#include "Model/Shape.h"

/// Draws arcs through three points, one after the other, until the user ends it: the start, the
/// end, then a point between them. A typed radius keeps the arc on the cursor's side of the chord
/// and does not change whether it is the longer one.
class ArcThreePointsAction final : public DrawingAction
{
public:
    /// The workspace is not owned and outlives the action.
    explicit ArcThreePointsAction(Workspace& workspace);

    std::wstring GetViewText() const override;
    vesk::OwnerPtr<vesk::ITemporaryDimensionContext> CreateDimensionContext() const override;
    vesk::OwnerPtr<vesk::IGraphicsNodeGroup> CreateRubberBand() const override;

protected:
    std::optional<vesk::Vector3d> GetStart() const override;
    vesk::Vector3d GetEnd() const override;
    bool Expects(vesk::InputState field) const override;
    double ReadCursor(vesk::InputState field) const override;
    bool CanFinish(const vesk::Vector3d& end) const override;
    bool Finish(const vesk::Vector3d& end) override;

private:
    std::optional<ArcShape> MakeArc(const vesk::Vector3d& point) const;
    vesk::Vector3d GetCursorOffChord() const;

    std::optional<vesk::Vector3d> m_start;
    std::optional<vesk::Vector3d> m_end;
};
