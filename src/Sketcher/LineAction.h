#pragma once

#include "Command/IAction.h"
#include "Dimension/InputState.h"

#include <optional>
#include <vector>

class Sketch;
class Snapper;
struct Workspace;

/// Draws segments one after the other until the user ends it.
///
/// The next point is clicked, or given by length and angle; what is not typed follows the cursor.
class LineAction final : public vesk::IAction
{
public:
    /// The workspace is not owned and outlives the action.
    explicit LineAction(Workspace& workspace);

    std::wstring GetViewText() const override;
    void OnBegin(vesk::IUiView* pView) override;
    void OnMouseMove(const vesk::Vector3d& world) override;
    void OnClick(const vesk::Vector3d& world) override;
    void OnViewInput(const vesk::ActionViewInput& input) override;
    bool OnEscape() override;
    void OnEnd() override;
    vesk::OwnerPtr<vesk::ITemporaryDimensionContext> CreateDimensionContext() const override;
    vesk::OwnerPtr<vesk::IGraphicsNodeGroup> CreateRubberBand() const override;
    bool ReplayPoint(const vesk::Vector3d& world, const std::optional<int>& entity) override;
    bool ReplayValue(vesk::InputState field, const std::wstring& text, double value) override;

private:
    /// A segment drawn by this action; an undo may have taken it back since.
    struct Segment
    {
        int entity;
        vesk::Vector3d end;
    };

    bool HasStart() const { return m_firstPoint.has_value(); }
    bool HasLocks() const { return m_lockedLength.has_value() || m_lockedAngle.has_value(); }
    bool RestsOnStart() const;
    vesk::Vector3d GetStart() const;
    vesk::Vector3d GetEnd() const;
    double GetPixel() const;
    double GetLength() const;
    double GetAngle() const;
    void TakeValue(const vesk::ActionViewInput& input, vesk::InputState field);
    void Unlock();
    bool Finish(const vesk::Vector3d& point);

    Sketch& m_sketch;
    Snapper& m_snapper;
    vesk::IUiView* m_pView = nullptr;
    std::optional<vesk::Vector3d> m_firstPoint;
    std::vector<Segment> m_segments;
    vesk::Vector3d m_cursor = vesk::Vector3d::Zero();
    std::optional<double> m_lockedLength;
    std::optional<double> m_lockedAngle;
};
