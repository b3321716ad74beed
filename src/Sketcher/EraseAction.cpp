#include "EraseAction.h"

#include "Sketch.h"

#include "Graphics/IGraphicsNode.h"
#include "Journal/JournalManager.h"
#include "View/UiViewUtility.h"

#include <algorithm>

using namespace vesk;

namespace
{

constexpr int PickPixels = 10;

double DistanceTo(const Entity& entity, const Vector3d& point)
{
    const Vector3d way = entity.end - entity.start;
    const double along = (point - entity.start).dot(way) / way.squaredNorm();
    return (entity.start + std::clamp(along, 0.0, 1.0) * way - point).norm();
}

}

EraseAction::EraseAction(Sketch& sketch) : m_sketch(sketch) {}

std::wstring EraseAction::GetViewText() const
{
    return L"删除：单击要删除的图元；Esc 结束";
}

void EraseAction::OnBegin(IUiView* pView)
{
    m_pView = pView;
}

void EraseAction::OnMouseMove(const Vector3d& world)
{
    m_hovered = Pick(world);
}

void EraseAction::OnClick(const Vector3d& world)
{
    if (const int picked = Pick(world))
        ReplayPoint(world, picked);
    m_hovered = Pick(world);
}

OwnerPtr<IGraphicsNodeGroup> EraseAction::CreateRubberBand() const
{
    const Entity* pHovered = m_sketch.Find(m_hovered);
    if (pHovered == nullptr)
        return nullptr;
    OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();
    opGroup->AddChild(
        IGraphicsLine::Create(pHovered->start, pHovered->end, GraphicsRole::RubberBand));
    return opGroup;
}

bool EraseAction::ReplayPoint(const Vector3d& world, const std::optional<int>& entity)
{
    if (!entity.has_value() || !m_sketch.Erase(*entity))
        return false;
    JournalManager::GetInstance().Add(PointRecord{world, entity});
    return true;
}

int EraseAction::Pick(const Vector3d& world) const
{
    double nearest = UiViewUtility::ComputeWorldWidthFromPixel(m_pView, PickPixels);
    int picked = 0;
    for (const Entity& entity : m_sketch.GetEntities())
    {
        const double distance = DistanceTo(entity, world);
        if (distance > nearest)
            continue;
        nearest = distance;
        picked = entity.id;
    }
    return picked;
}
