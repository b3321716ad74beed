#pragma once

#include "Tools/DrawingAction.h"

#include "Model/Shape.h"

/// Draws circles, one after the other, until the user ends it: the centre, then the radius, clicked
/// or typed.
class CircleAction final : public DrawingAction
{
public:
    /// The workspace is not owned and outlives the action.
    explicit CircleAction(Workspace& workspace);

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
    CircleShape MakeCircle(const vesk::Vector3d& end) const;

    std::optional<vesk::Vector3d> m_centre;
};
