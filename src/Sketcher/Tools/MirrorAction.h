#pragma once

#include "Tools/SelectionAction.h"

/// Draws the mirror images of the selected entities in an axis through two points, the second
/// clicked or given by distance and angle; then it ends. The originals stay. It is one undo step.
class MirrorAction final : public SelectionAction
{
public:
    /// The workspace is not owned and outlives the action.
    explicit MirrorAction(Workspace& workspace);

    bool IsFinished() const override;
    vesk::OwnerPtr<vesk::ITemporaryDimensionContext> CreateDimensionContext() const override;

protected:
    bool HasFirstPoint() const override;
    std::wstring GetNextText() const override;
    void AddPreview(vesk::IGraphicsNodeGroup& group) const override;
    std::optional<vesk::Vector3d> GetStart() const override;
    vesk::Vector3d GetEnd() const override;
    bool Expects(vesk::InputState field) const override;
    double ReadCursor(vesk::InputState field) const override;
    bool CanFinish(const vesk::Vector3d& end) const override;
    bool Finish(const vesk::Vector3d& end) override;
    bool NeedsValues() const override { return true; }

private:
    Change MirrorTo(const vesk::Vector3d& end) const;

    std::optional<vesk::Vector3d> m_onAxis;
    bool m_isFinished = false;
};
