#pragma once

#include "Tools/TwoPointAction.h"

/// Moves the selected entities from a base point to a target; then it ends. The move is one undo
/// step.
class MoveAction : public TwoPointAction
{
public:
    /// The workspace is not owned and outlives the action.
    explicit MoveAction(Workspace& workspace);

protected:
    MoveAction(Workspace& workspace, const Prompts& prompts);

    std::wstring GetNextText() const override;
    void AddPreview(vesk::IGraphicsNodeGroup& group) const override;
    bool CanFinish(const vesk::Vector3d& end) const override;
    bool Apply(const vesk::Vector3d& end) override;

    /// What the way to a target does to each entity.
    Change MoveTo(const vesk::Vector3d& end) const;

private:
    vesk::Vector3d GetWayTo(const vesk::Vector3d& end) const;
};

/// Copies the selected entities in the same way to any number of targets, until the user ends it.
/// Each copy is one undo step.
class CopyAction final : public MoveAction
{
public:
    /// The workspace is not owned and outlives the action.
    explicit CopyAction(Workspace& workspace);

protected:
    bool Apply(const vesk::Vector3d& end) override;
    bool IsRepeated() const override { return true; }
};
