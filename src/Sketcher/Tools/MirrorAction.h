#pragma once

#include "Tools/TwoPointAction.h"

/// Draws the mirror images of the selected entities in an axis through two points; then it ends.
/// The originals stay. It is one undo step.
class MirrorAction final : public TwoPointAction
{
public:
    /// The workspace is not owned and outlives the action.
    explicit MirrorAction(Workspace& workspace);

protected:
    std::wstring GetNextText() const override;
    void AddPreview(vesk::IGraphicsNodeGroup& group) const override;
    bool CanFinish(const vesk::Vector3d& end) const override;
    bool Apply(const vesk::Vector3d& end) override;

private:
    Change MirrorTo(const vesk::Vector3d& end) const;
};
