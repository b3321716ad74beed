#pragma once

#include "Tools/DrawingAction.h"

/// Draws axis-aligned rectangles, one after the other, until the user ends it.
///
/// The opposite corner is clicked, or given by width and height in the quadrant of the cursor; a
/// value not typed follows the cursor.
class RectangleAction final : public DrawingAction
{
public:
    /// The workspace is not owned and outlives the action.
    explicit RectangleAction(Workspace& workspace);

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
    std::optional<vesk::Vector3d> m_corner;
};
