#pragma once

#include "Tools/DrawingAction.h"

#include <vector>

/// Draws connected segments until the user ends it.
///
/// The next point is clicked, or given by length and angle; a value not typed follows the cursor.
class LineAction final : public DrawingAction
{
public:
    /// The workspace is not owned and outlives the action.
    explicit LineAction(Workspace& workspace);

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
    /// A segment drawn by this action; it may have been undone since.
    struct Segment
    {
        int entity;
        vesk::Vector3d end;
    };

    std::optional<vesk::Vector3d> m_firstPoint;
    std::vector<Segment> m_segments;
};
