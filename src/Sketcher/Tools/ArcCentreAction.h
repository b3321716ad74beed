#pragma once

#include "Tools/DrawingAction.h"

#include "Model/Shape.h"

/// Draws arcs about a centre, one after the other, until the user ends it: the centre, the start,
/// then the end by a click, which makes the shorter arc, or by a typed central angle, which is
/// negative for an arc that runs clockwise from the start. 360 is a full circle.
class ArcCentreAction final : public DrawingAction
{
public:
    /// The workspace is not owned and outlives the action.
    explicit ArcCentreAction(Workspace& workspace);

    std::wstring GetViewText() const override;
    vesk::OwnerPtr<vesk::ITemporaryDimensionContext> CreateDimensionContext() const override;
    vesk::OwnerPtr<vesk::IGraphicsNodeGroup> CreateRubberBand() const override;

protected:
    std::optional<vesk::Vector3d> GetStart() const override;
    vesk::Vector3d GetEnd() const override;
    bool RestsOnStart() const override;
    bool Expects(vesk::InputState field) const override;
    double ReadCursor(vesk::InputState field) const override;
    bool CanFinish(const vesk::Vector3d& end) const override;
    bool Finish(const vesk::Vector3d& end) override;

private:
    std::optional<ArcShape> MakeArc(const vesk::Vector3d& end) const;
    vesk::Vector3d GetTarget() const;

    std::optional<vesk::Vector3d> m_centre;
    std::optional<vesk::Vector3d> m_start;
};
