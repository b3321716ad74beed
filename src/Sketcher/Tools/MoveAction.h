#pragma once

#include "Tools/SelectionAction.h"

/// Moves the selected entities from a base point to a target, clicked or given by distance and
/// angle; then it ends. The move is one undo step.
class MoveAction : public SelectionAction
{
public:
    /// The workspace is not owned and outlives the action.
    explicit MoveAction(Workspace& workspace);

    bool IsFinished() const override;
    vesk::OwnerPtr<vesk::ITemporaryDimensionContext> CreateDimensionContext() const override;

protected:
    enum class Mode
    {
        Move,
        Copy,
    };

    MoveAction(Workspace& workspace, Mode mode);

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
    vesk::Vector3d GetWayTo(const vesk::Vector3d& end) const;
    Change MoveTo(const vesk::Vector3d& end) const;

    const Mode m_mode;
    std::optional<vesk::Vector3d> m_base;
    bool m_isFinished = false;
};

/// Copies the selected entities in the same way to any number of targets, until the user ends it.
/// Each copy is one undo step.
class CopyAction final : public MoveAction
{
public:
    explicit CopyAction(Workspace& workspace) : MoveAction(workspace, Mode::Copy) {}
};
