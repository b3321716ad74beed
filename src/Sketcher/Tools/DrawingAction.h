#pragma once

#include "Tools/TypedValues.h"

#include "Command/IAction.h"

#include <optional>

struct Workspace;

/// The base of actions that take points, clicked or given by typed values.
///
/// A step ends where the user clicks, or where the values that are committed put it. A value that
/// is taken with Tab holds, whatever the cursor does, until the step ends, Escape drops it or its
/// field is emptied. A finished step is recorded: its values, then its point.
class DrawingAction : public vesk::IAction
{
public:
    void OnBegin(vesk::IUiView* pView) override;
    void OnMouseMove(const vesk::Vector3d& world) override;
    void OnClick(const vesk::Vector3d& world) override;
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

    /// Where the step under way began; empty when it has no direction yet.
    virtual std::optional<vesk::Vector3d> GetStart() const = 0;

    /// Where the step would end now, by the cursor and the values.
    virtual vesk::Vector3d GetEnd() const = 0;

    /// Whether a value can be typed now.
    virtual bool Expects(vesk::InputState field) const = 0;

    /// A value as the cursor gives it, in model units and not rounded.
    virtual double ReadCursor(vesk::InputState field) const = 0;

    /// Whether a step that takes values could end at a point, with the values there are.
    virtual bool CanFinish(const vesk::Vector3d& end) const = 0;

    /// Ends the step at a point, with the values there are. False, and nothing is done, when that
    /// cannot be.
    virtual bool Finish(const vesk::Vector3d& end) = 0;

    Workspace& GetWorkspace() const { return m_workspace; }
    vesk::IUiView* GetView() const { return m_pView; }
    bool HasValues() const { return !m_values.IsEmpty(); }
    std::optional<double> GetTyped(vesk::InputState field) const { return m_values.Get(field); }

    /// The value typed, else the cursor's.
    double GetValue(vesk::InputState field) const;

    /// The cursor rests on a point.
    bool RestsOn(const vesk::Vector3d& point) const;

    /// The cursor gives no direction: a click means nothing.
    virtual bool RestsOnStart() const;

    /// The cursor; a pixel beside the point along x when it rests there.
    vesk::Vector3d GetCursorOff(const vesk::Vector3d& point) const;
    const vesk::Vector3d& GetCursor() const { return m_cursor; }

    /// The size of a pixel in the model.
    double GetPixel() const;

private:
    std::optional<vesk::InputState> FindOther(vesk::InputState field) const;
    bool EndStep(const vesk::Vector3d& end);

    Workspace& m_workspace;
    vesk::IUiView* m_pView = nullptr;
    vesk::Vector3d m_cursor = vesk::Vector3d::Zero();
    TypedValues m_values;
};
