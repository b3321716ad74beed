#include "RoomAction.h"

#include <Dimension/RectangleTemporaryDimensionContext.h>
#include <Dimension/TemporaryDimensionMgr.h>
#include <Graphics/IGraphicsNode.h>

#include <cmath>
#include <utility>

using namespace vesk;

RoomAction::RoomAction(std::function<void(const QRectF&)> draw) : m_draw(std::move(draw)) {}

std::wstring RoomAction::GetViewText() const
{
    return m_corner.has_value() ? L"Room: click the opposite corner, or type its width"
                                : L"Room: click a corner";
}

void RoomAction::OnEnd()
{
    for (const auto& typed : m_typed)
        TemporaryDimensionMgr::GetInstance()->SetLocked(typed.first, false);
}

void RoomAction::OnClick(const Vector3d& world)
{
    m_cursor = world;
    if (m_corner.has_value())
        Finish();
    else
        m_corner = world;
}

OwnerPtr<IGraphicsNodeGroup> RoomAction::CreateRubberBand() const
{
    if (!m_corner.has_value())
        return nullptr;
    const Vector3d opposite = GetOpposite();
    const Vector3d beside(opposite.x(), m_corner->y(), 0.0);
    const Vector3d above(m_corner->x(), opposite.y(), 0.0);
    OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();
    for (const auto& side : {std::pair(*m_corner, beside), std::pair(beside, opposite),
                             std::pair(opposite, above), std::pair(above, *m_corner)})
        opGroup->AddChild(IGraphicsLine::Create(side.first, side.second, GraphicsRole::RubberBand));
    return opGroup;
}

OwnerPtr<ITemporaryDimensionContext> RoomAction::CreateDimensionContext() const
{
    if (!m_corner.has_value())
        return nullptr;
    return MakeOwner<RectangleTemporaryDimensionContext>(Coordinate3d(), *m_corner, GetOpposite());
}

void RoomAction::OnViewInput(const ActionViewInput&, const TypedValue& typed)
{
    m_typed[typed.field] = typed.value;
    TemporaryDimensionMgr::GetInstance()->SetLocked(typed.field, true, typed.value);
    if (typed.isCommitted)
        Finish();
}

void RoomAction::OnValueFreed(InputState field)
{
    m_typed.erase(field);
    TemporaryDimensionMgr::GetInstance()->SetLocked(field, false);
}

Vector3d RoomAction::GetOpposite() const
{
    const Vector3d way = m_cursor - *m_corner;
    return *m_corner + Vector3d(GetSize(InputState::IS_Width, way.x()),
                                GetSize(InputState::IS_Height, way.y()), 0.0);
}

/// The typed size, to the side on which the cursor is; otherwise the cursor's.
double RoomAction::GetSize(InputState field, double drawn) const
{
    const auto typed = m_typed.find(field);
    return typed != m_typed.end() ? std::copysign(typed->second, drawn) : drawn;
}

void RoomAction::Finish()
{
    const Vector3d opposite = GetOpposite();
    m_draw(QRectF(QPointF(m_corner->x(), m_corner->y()), QPointF(opposite.x(), opposite.y()))
               .normalized());
    m_isFinished = true;
}
