#pragma once

#include "Tools/TypedValues.h"

#include "Command/IAction.h"

#include <optional>

struct Workspace;

/// Base of actions that accept points, clicked or given by typed values.
///
/// A step ends where the user clicks, or at the point given by committed values. A value locked
/// with Tab holds, wherever the cursor moves, until the step ends, Escape drops it or its field is
/// emptied. A finished step is recorded: its values, then its point. After a point given by its
/// coordinates the cursor rests there until it moves, wherever the mouse is.
class DrawingAction : public vesk::IAction
{
public:
    void OnBegin(vesk::IUiView* pView) override;
    void OnMouseMove(const vesk::Vector3d& world) override;
    void OnClick(const vesk::Vector3d& world) override;
    bool TakesPoint() const override { return !HasValues(); }
    bool OnPoint(const vesk::Vector3d& world) override;
    std::wstring GetRefusal(vesk::InputState field, double value) override;
    void OnViewInput(const vesk::ActionViewInput& input, const vesk::TypedValue& typed) override;
    void OnValueFreed(vesk::InputState field) override;
    bool OnEscape() override;
    void OnEnd() override;
    bool ReplayPoint(const vesk::Vector3d& world, const std::optional<int>& entity) override;
    bool ReplayValue(vesk::InputState field, const std::wstring& text, double value) override;

protected:
    /// The workspace is not owned and outlives the action.
    explicit DrawingAction(Workspace& workspace);

    /// The start of the current step; empty if it has no direction yet.
    virtual std::optional<vesk::Vector3d> GetStart() const = 0;

    /// Where the step would end now, given the cursor and the values.
    virtual vesk::Vector3d GetEnd() const = 0;

    /// Whether a value can be typed now.
    virtual bool Expects(vesk::InputState field) const = 0;

    /// The value given by the cursor, in model units, unrounded.
    virtual double ReadCursor(vesk::InputState field) const = 0;

    /// Whether a step that expects values could end at a point with the current values.
    virtual bool CanFinish(const vesk::Vector3d& end) const = 0;

    /// Ends the step at a point with the current values. Returns false and does nothing if that is
    /// impossible.
    virtual bool Finish(const vesk::Vector3d& end) = 0;

    /// Whether the result of a step depends on its values, not only on its end point. Such values
    /// are recorded when the step ends, because they may be dropped before; others at once.
    virtual bool NeedsValues() const { return false; }

    Workspace& GetWorkspace() const { return m_workspace; }
    vesk::IUiView* GetView() const { return m_pView; }
    bool HasValues() const { return !m_values.IsEmpty(); }
    std::optional<double> GetTyped(vesk::InputState field) const { return m_values.Get(field); }

    /// The typed value, else the cursor's.
    double GetValue(vesk::InputState field) const;

    /// Whether the cursor rests on a point.
    bool RestsOn(const vesk::Vector3d& point) const;

    /// Whether the cursor gives no direction, so that a click means nothing.
    virtual bool RestsOnStart() const;

    /// The cursor, or one pixel from the point along x if it rests there.
    vesk::Vector3d GetCursorOff(const vesk::Vector3d& point) const;
    const vesk::Vector3d& GetCursor() const { return m_cursor; }

    /// The size of a pixel in model units.
    double GetPixel() const;

    /// For a step that goes straight from its start, by a length and an angle: its end, what the
    /// cursor gives, and the dimensions to type. The length is the cursor's projection onto the
    /// direction, at least a pixel; the angle is 0 while the cursor rests on the start, and a
    /// multiple of 15 degrees while directions are held.
    vesk::Vector3d GetStraightEnd() const;
    double ReadStraight(vesk::InputState field) const;
    vesk::OwnerPtr<vesk::ITemporaryDimensionContext> MakeStraightContext() const;

private:
    double Confirm(const vesk::TypedValue& typed) const;
    std::optional<vesk::InputState> FindOther(vesk::InputState field) const;
    bool EndStep(const vesk::Vector3d& end);

    Workspace& m_workspace;
    vesk::IUiView* m_pView = nullptr;
    vesk::Vector3d m_cursor = vesk::Vector3d::Zero();
    TypedValues m_values;
};
