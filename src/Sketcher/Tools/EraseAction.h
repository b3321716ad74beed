#pragma once

#include "Model/PickingTool.h"

#include "Command/IAction.h"

class Sketch;
struct Workspace;

/// Erases each entity that is picked, until the user ends it.
class EraseAction final : public vesk::IAction, public IPickingTool
{
public:
    /// The workspace is not owned and outlives the action.
    explicit EraseAction(Workspace& workspace);

    std::wstring GetViewText() const override;
    void OnBegin(vesk::IUiView* pView) override;
    void OnMouseMove(const vesk::Vector3d& world) override;
    void OnClick(const vesk::Vector3d& world) override;
    vesk::OwnerPtr<vesk::IGraphicsNodeGroup> CreateRubberBand() const override;
    bool ReplayPoint(const vesk::Vector3d& world, const std::optional<int>& entity) override;
    Click GetClick() const override;

private:
    Sketch& m_sketch;
    vesk::IUiView* m_pView = nullptr;

    /// The entity under the cursor, which a click would erase; 0 for none.
    int m_hovered = 0;
};
