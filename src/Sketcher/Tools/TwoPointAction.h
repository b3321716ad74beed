#pragma once

#include "Tools/SelectionAction.h"

#include <optional>

/// Base of actions that change or copy the selected entities by a straight way: from a first point
/// to a second, clicked or given by distance and angle.
class TwoPointAction : public SelectionAction
{
public:
    bool IsFinished() const override { return m_isFinished; }
    vesk::OwnerPtr<vesk::ITemporaryDimensionContext> CreateDimensionContext() const override;

protected:
    using SelectionAction::SelectionAction;

    /// Does what the action is for, given the second point, at which CanFinish is true. Returns
    /// false and changes nothing if that is impossible.
    virtual bool Apply(const vesk::Vector3d& end) = 0;

    /// Whether the action goes on afterwards, with the same first point.
    virtual bool IsRepeated() const { return false; }

    /// Only while HasFirstPoint() is true.
    const vesk::Vector3d& GetFirstPoint() const { return *m_first; }

    bool HasFirstPoint() const override { return m_first.has_value(); }
    std::optional<vesk::Vector3d> GetStart() const override { return m_first; }
    vesk::Vector3d GetEnd() const override { return GetStraightEnd(); }
    bool Expects(vesk::InputState field) const override;
    double ReadCursor(vesk::InputState field) const override { return ReadStraight(field); }
    bool Finish(const vesk::Vector3d& end) override;
    bool NeedsValues() const override { return true; }

private:
    std::optional<vesk::Vector3d> m_first;
    bool m_isFinished = false;
};
