#include "Tools/ArcThreePointsAction.h"

#include "Model/Polar.h"
#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Tools/ArcConstruction.h"
#include "Tools/ShapeGraphics.h"

#include "Dimension/LengthUnit.h"
#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "Geometry/Constants.h"
#include "Graphics/IGraphicsNode.h"

using namespace vesk;

ArcThreePointsAction::ArcThreePointsAction(Workspace& workspace) : DrawingAction(workspace) {}

std::wstring ArcThreePointsAction::GetViewText() const
{
    if (!m_start.has_value())
        return L"三点圆弧：单击起点，或键入坐标；Esc 结束"_tr;
    if (!m_end.has_value())
        return L"三点圆弧：单击端点，或键入坐标；Esc 结束"_tr;
    return L"三点圆弧：单击弧上一点，或键入半径；Esc 结束"_tr;
}

OwnerPtr<ITemporaryDimensionContext> ArcThreePointsAction::CreateDimensionContext() const
{
    if (!m_end.has_value())
        return nullptr;
    auto opContext = MakeOwner<RadiusTemporaryDimensionContext>(
        Coordinate3d(), *m_start, *m_end, HasValues() ? GetEnd() : GetCursorOffChord());
    const double least = (*m_end - *m_start).norm() / 2;
    opContext->SetFirstValueRange(
        LengthUnit::GetCurrent().ToShown(Intervald(least, Constants::MAX_MODEL_SIZE)));
    return opContext;
}

OwnerPtr<IGraphicsNodeGroup> ArcThreePointsAction::CreateRubberBand() const
{
    if (!m_start.has_value())
        return nullptr;
    if (!m_end.has_value())
        return MakeRubberBand(LineShape{*m_start, GetCursor()});
    const std::optional<ArcShape> arc = MakeArc(GetEnd());
    return arc.has_value() ? MakeRubberBand(*arc) : MakeRubberBand(LineShape{*m_start, *m_end});
}

std::optional<Vector3d> ArcThreePointsAction::GetStart() const
{
    return m_end.has_value() ? m_end : m_start;
}

Vector3d ArcThreePointsAction::GetEnd() const
{
    if (!HasValues())
        return GetCursor();
    return TopOfArc(*m_start, *m_end, GetValue(InputState::IS_Radius), GetCursorOffChord());
}

bool ArcThreePointsAction::Expects(InputState field) const
{
    return field == InputState::IS_Radius && m_end.has_value();
}

double ArcThreePointsAction::ReadCursor(InputState) const
{
    const std::optional<ArcShape> arc = ArcThrough(*m_start, *m_end, GetCursorOffChord());
    return arc.has_value() ? arc->radius : 0.0;
}

bool ArcThreePointsAction::CanFinish(const Vector3d& end) const
{
    return MakeArc(end).has_value();
}

/// Sets the start, then the end, then draws the arc.
bool ArcThreePointsAction::Finish(const Vector3d& end)
{
    if (!m_start.has_value())
    {
        m_start = end;
        return true;
    }
    if (!m_end.has_value())
    {
        if (!IsDrawable(LineShape{*m_start, end}))
            return false;
        m_end = end;
        return true;
    }
    const std::optional<ArcShape> arc = MakeArc(end);
    if (!arc.has_value())
        return false;
    GetWorkspace().sketch.Add(*arc);
    m_start.reset();
    m_end.reset();
    return true;
}

std::optional<ArcShape> ArcThreePointsAction::MakeArc(const Vector3d& point) const
{
    if (const std::optional<double> radius = GetTyped(InputState::IS_Radius))
        return ArcOfRadius(*m_start, *m_end, *radius, point);
    return ArcThrough(*m_start, *m_end, point);
}

/// The cursor. If it makes no arc, a point that still has a radius to show: while the cursor rests
/// on the end, one of the half circle to the left of the chord; while it is on the chord's line,
/// one a pixel to the left.
Vector3d ArcThreePointsAction::GetCursorOffChord() const
{
    const Vector3d left = QuarterTurned(*m_end - *m_start);
    if (RestsOn(*m_end))
        return (*m_start + *m_end + left) / 2;
    if (ArcThrough(*m_start, *m_end, GetCursor()).has_value())
        return GetCursor();
    return GetCursor() + GetPixel() * left.normalized();
}
