#pragma once

#include "Tools/DrawingAction.h"

#include "Model/PickingTool.h"
#include "Model/Shape.h"

struct Entity;

/// Draws parallels of entities, one after the other, until the user ends it: an entity is clicked,
/// then a point through which its parallel goes, or its distance is typed and the cursor gives the
/// side. Each parallel is one undo step and has the entity's pen.
class OffsetAction final : public DrawingAction, public IPickingTool
{
public:
    /// The workspace is not owned and outlives the action.
    explicit OffsetAction(Workspace& workspace);

    std::wstring GetViewText() const override;
    void OnMouseMove(const vesk::Vector3d& world) override;
    void OnClick(const vesk::Vector3d& world) override;
    bool TakesPoint() const override;
    std::wstring GetRefusal(vesk::InputState field, double value) override;
    void OnViewInput(const vesk::ActionViewInput& input, const vesk::TypedValue& typed) override;
    bool ReplayPoint(const vesk::Vector3d& world, const std::optional<int>& entity) override;
    vesk::OwnerPtr<vesk::ITemporaryDimensionContext> CreateDimensionContext() const override;
    vesk::OwnerPtr<vesk::IGraphicsNodeGroup> CreateRubberBand() const override;
    Click GetClick() const override;

protected:
    std::optional<vesk::Vector3d> GetStart() const override;
    vesk::Vector3d GetEnd() const override;
    bool Expects(vesk::InputState field) const override;
    double ReadCursor(vesk::InputState field) const override;
    bool CanFinish(const vesk::Vector3d& end) const override;
    bool Finish(const vesk::Vector3d& end) override;
    bool NeedsValues() const override { return true; }

private:
    const Entity* GetSource() const;
    std::optional<Shape> MakeParallel(const vesk::Vector3d& end) const;

    /// The entity that was clicked, which an undo may have removed since; 0 for none.
    int m_source = 0;

    /// The entity under the cursor, which a click would take; 0 for none.
    int m_hovered = 0;
};
