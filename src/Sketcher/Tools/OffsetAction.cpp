#include "Tools/OffsetAction.h"

#include "Model/Picking.h"
#include "Model/Polar.h"
#include "Model/ShapeOffset.h"
#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Tools/ShapeGraphics.h"

#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Geometry/Constants.h"
#include "Graphics/IGraphicsNode.h"
#include "Journal/JournalManager.h"

#include <algorithm>
#include <cmath>

using namespace vesk;

OffsetAction::OffsetAction(Workspace& workspace) : DrawingAction(workspace) {}

std::wstring OffsetAction::GetViewText() const
{
    return GetSource() != nullptr
               ? L"偏移：单击偏移后通过的点，或键入距离（光标所在一侧）；Esc 结束"_tr
               : L"偏移：单击要偏移的图元；Esc 结束"_tr;
}

void OffsetAction::OnMouseMove(const Vector3d& world)
{
    DrawingAction::OnMouseMove(world);
    m_hovered = 0;
    if (GetSource() != nullptr)
        return;
    m_hovered = PickEntity(GetWorkspace().sketch, world, GetView());
    GetWorkspace().snapper.Release();
}

void OffsetAction::OnClick(const Vector3d& world)
{
    OnMouseMove(world);
    if (GetSource() != nullptr)
        DrawingAction::OnClick(world);
    else if (m_hovered != 0)
        ReplayPoint(world, m_hovered);
}

bool OffsetAction::TakesPoint() const
{
    return GetSource() != nullptr && DrawingAction::TakesPoint();
}

/// The angle is only shown: the cursor's side gives it.
std::wstring OffsetAction::GetRefusal(InputState field, double value)
{
    const Entity* pSource = GetSource();
    if (field != InputState::IS_Angle || pSource == nullptr)
        return DrawingAction::GetRefusal(field, value);
    constexpr double Shown = 0.01;
    const double shown = AngleOf(SideOf(pSource->shape, GetCursor()).away);
    return std::abs(value - shown) < Shown ? std::wstring() : L"偏移的方向由光标所在一侧决定"_tr;
}

/// Confirming the angle that is shown confirms the distance.
void OffsetAction::OnViewInput(const ActionViewInput& input, const TypedValue& typed)
{
    if (typed.field == InputState::IS_Angle && typed.isCommitted)
        DrawingAction::OnClick(GetCursor());
    else
        DrawingAction::OnViewInput(input, typed);
}

bool OffsetAction::ReplayPoint(const Vector3d& world, const std::optional<int>& entity)
{
    if (!entity.has_value())
        return GetSource() != nullptr && DrawingAction::ReplayPoint(world, entity);
    if (GetSource() != nullptr || !GetWorkspace().sketch.CanPick(*entity))
        return false;
    m_source = *entity;
    m_hovered = 0;
    JournalManager::GetInstance().Add(PointRecord{world, entity});
    return true;
}

OwnerPtr<ITemporaryDimensionContext> OffsetAction::CreateDimensionContext() const
{
    if (GetSource() == nullptr)
        return nullptr;
    return MakeOwner<LinearTemporaryDimensionContext>(Coordinate3d(), *GetStart(), GetEnd());
}

OwnerPtr<IGraphicsNodeGroup> OffsetAction::CreateRubberBand() const
{
    OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();
    if (const Entity* pHovered = GetWorkspace().sketch.Find(m_hovered))
        AddRubberBand(*opGroup, pHovered->shape);
    if (GetSource() == nullptr)
        return opGroup;
    AddRubberBand(*opGroup, LineShape{*GetStart(), GetEnd()});
    if (const std::optional<Shape> parallel = MakeParallel(GetEnd()))
        AddRubberBand(*opGroup, *parallel);
    return opGroup;
}

IPickingTool::Click OffsetAction::GetClick() const
{
    if (GetSource() != nullptr)
        return Click::SetsPoint;
    return m_hovered != 0 ? Click::PicksEntity : Click::DoesNothing;
}

/// The point of the source that faces the cursor.
std::optional<Vector3d> OffsetAction::GetStart() const
{
    const Entity* pSource = GetSource();
    return pSource != nullptr ? std::make_optional(SideOf(pSource->shape, GetCursor()).foot)
                              : std::nullopt;
}

Vector3d OffsetAction::GetEnd() const
{
    const Entity* pSource = GetSource();
    if (pSource == nullptr || (!HasValues() && !RestsOnStart()))
        return GetCursor();
    const OffsetSide side = SideOf(pSource->shape, GetCursor());
    return side.foot + GetValue(InputState::IS_Length) * side.away;
}

bool OffsetAction::Expects(InputState field) const
{
    return field == InputState::IS_Length && GetSource() != nullptr;
}

double OffsetAction::ReadCursor(InputState) const
{
    return std::max(SideOf(GetSource()->shape, GetCursor()).distance, GetPixel());
}

bool OffsetAction::CanFinish(const Vector3d& end) const
{
    return MakeParallel(end).has_value();
}

bool OffsetAction::Finish(const Vector3d& end)
{
    const Entity* pSource = GetSource();
    const std::optional<Shape> parallel =
        pSource != nullptr ? MakeParallel(end) : std::optional<Shape>();
    if (!parallel.has_value())
        return false;
    GetWorkspace().sketch.Add({{*parallel, pSource->pen}}, L"偏移"_source);
    m_source = 0;
    return true;
}

/// Null if there is none.
const Entity* OffsetAction::GetSource() const
{
    return GetWorkspace().sketch.Find(m_source);
}

/// Nothing if it cannot be drawn or would be the source itself.
std::optional<Shape> OffsetAction::MakeParallel(const Vector3d& end) const
{
    const Shape& source = GetSource()->shape;
    const OffsetSide side = SideOf(source, end);
    const double distance = GetTyped(InputState::IS_Length).value_or(side.distance);
    // A distance greater than the source is wide ends outside on its far side.
    const double rounding = 1e-9 * distance + 1e-12 * end.norm();
    const bool isAcross = !side.isInside && side.distance < distance - rounding;
    if (isAcross || distance < Constants::MIN_MODEL_SIZE)
        return std::nullopt;
    return Offset(source, end, distance);
}
