#pragma once

#include "Tools/SelectionAction.h"

/// Rotates the selected entities about a centre, from the direction of one point to that of
/// another, or by a typed angle; then it ends. The rotation is one undo step.
class RotateAction final : public SelectionAction
{
public:
    /// The workspace is not owned and outlives the action.
    explicit RotateAction(Workspace& workspace);

    bool IsFinished() const override;
    vesk::OwnerPtr<vesk::ITemporaryDimensionContext> CreateDimensionContext() const override;

protected:
    bool HasFirstPoint() const override;
    std::wstring GetNextText() const override;
    void AddPreview(vesk::IGraphicsNodeGroup& group) const override;
    std::optional<vesk::Vector3d> GetStart() const override;
    vesk::Vector3d GetEnd() const override;
    bool RestsOnStart() const override;
    bool Expects(vesk::InputState field) const override;
    double ReadCursor(vesk::InputState field) const override;
    bool CanFinish(const vesk::Vector3d& end) const override;
    bool Finish(const vesk::Vector3d& end) override;

private:
    double GetAngleTo(const vesk::Vector3d& end) const;
    Change TurnBy(double degrees) const;

    std::optional<vesk::Vector3d> m_centre;
    std::optional<vesk::Vector3d> m_from;
    bool m_isFinished = false;
};
