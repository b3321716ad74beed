#include "Tools/EraseAction.h"

#include "Model/Picking.h"
#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Tools/ShapeGraphics.h"

#include "Graphics/IGraphicsNode.h"
#include "Journal/JournalManager.h"

using namespace vesk;

EraseAction::EraseAction(Workspace& workspace) : m_sketch(workspace.sketch) {}

std::wstring EraseAction::GetViewText() const
{
    return L"删除：单击要删除的图元；Esc 结束"_tr;
}

void EraseAction::OnBegin(IUiView* pView)
{
    m_pView = pView;
}

void EraseAction::OnMouseMove(const Vector3d& world)
{
    m_hovered = PickEntity(m_sketch, world, m_pView);
}

void EraseAction::OnClick(const Vector3d& world)
{
    if (const int picked = PickEntity(m_sketch, world, m_pView))
        ReplayPoint(world, picked);
    m_hovered = PickEntity(m_sketch, world, m_pView);
}

OwnerPtr<IGraphicsNodeGroup> EraseAction::CreateRubberBand() const
{
    const Entity* pHovered = m_sketch.Find(m_hovered);
    return pHovered != nullptr ? MakeRubberBand(pHovered->shape) : nullptr;
}

bool EraseAction::ReplayPoint(const Vector3d& world, const std::optional<int>& entity)
{
    if (!entity.has_value() || !m_sketch.CanPick(*entity) || !m_sketch.Erase(*entity))
        return false;
    JournalManager::GetInstance().Add(PointRecord{world, entity});
    return true;
}

IPickingTool::Click EraseAction::GetClick() const
{
    return m_hovered != 0 ? Click::PicksEntity : Click::DoesNothing;
}
