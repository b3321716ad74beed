#include "Tools/ArcCentreAction.h"

#include "Model/Polar.h"
#include "Model/ShapeRotation.h"
#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Tools/ArcConstruction.h"
#include "Tools/ShapeGraphics.h"

#include "Dimension/CentralAngleTemporaryDimensionContext.h"
#include "Graphics/IGraphicsNode.h"

using namespace vesk;

ArcCentreAction::ArcCentreAction(Workspace& workspace) : DrawingAction(workspace) {}

std::wstring ArcCentreAction::GetViewText() const
{
    if (!m_centre.has_value())
        return L"圆心圆弧：单击圆心，或键入坐标；Esc 结束"_tr;
    if (!m_start.has_value())
        return L"圆心圆弧：单击起点，或键入坐标；Esc 结束"_tr;
    return L"圆心圆弧：单击端点，或键入圆心角（逆时针为正）；Esc 结束"_tr;
}

OwnerPtr<ITemporaryDimensionContext> ArcCentreAction::CreateDimensionContext() const
{
    if (!m_start.has_value())
        return nullptr;
    return MakeOwner<CentralAngleTemporaryDimensionContext>(Coordinate3d(), *m_centre, *m_start,
                                                            GetEnd(), GetTarget());
}

OwnerPtr<IGraphicsNodeGroup> ArcCentreAction::CreateRubberBand() const
{
    if (!m_centre.has_value())
        return nullptr;
    if (!m_start.has_value())
        return MakeRubberBand(LineShape{*m_centre, GetCursor()});
    const Vector3d end = GetEnd();
    OwnerPtr<IGraphicsNodeGroup> opGroup = MakeRubberBand(LineShape{*m_centre, end});
    if (const std::optional<ArcShape> arc = MakeArc(end))
        AddRubberBand(*opGroup, *arc);
    return opGroup;
}

std::optional<Vector3d> ArcCentreAction::GetStart() const
{
    return m_start.has_value() ? m_start : m_centre;
}

/// The end lies on the circle, in the direction of the cursor or at the typed angle.
Vector3d ArcCentreAction::GetEnd() const
{
    if (!m_start.has_value())
        return GetCursor();
    if (const std::optional<double> angle = GetTyped(InputState::IS_CentralAngle))
        return Rotated(*m_start, *m_centre, *angle);
    const double radius = (*m_start - *m_centre).norm();
    return *m_centre + radius * (GetTarget() - *m_centre).normalized();
}

bool ArcCentreAction::RestsOnStart() const
{
    return DrawingAction::RestsOnStart() || (m_centre.has_value() && RestsOn(*m_centre));
}

bool ArcCentreAction::Expects(InputState field) const
{
    return field == InputState::IS_CentralAngle && m_start.has_value();
}

double ArcCentreAction::ReadCursor(InputState) const
{
    return AngleBetween(*m_start - *m_centre, GetTarget() - *m_centre);
}

bool ArcCentreAction::CanFinish(const Vector3d& end) const
{
    return MakeArc(end).has_value();
}

/// Sets the centre, then the start, then draws the arc.
bool ArcCentreAction::Finish(const Vector3d& end)
{
    if (!m_centre.has_value())
    {
        m_centre = end;
        return true;
    }
    if (!m_start.has_value())
    {
        if (!IsDrawable(CircleShape{*m_centre, (end - *m_centre).norm()}))
            return false;
        m_start = end;
        return true;
    }
    const std::optional<ArcShape> arc = MakeArc(end);
    if (!arc.has_value())
        return false;
    GetWorkspace().sketch.Add(*arc);
    m_centre.reset();
    m_start.reset();
    return true;
}

std::optional<ArcShape> ArcCentreAction::MakeArc(const Vector3d& end) const
{
    if (const std::optional<double> angle = GetTyped(InputState::IS_CentralAngle))
        return ArcByAngle(*m_centre, *m_start, *angle);
    return ArcBetween(*m_centre, *m_start, end);
}

/// The cursor, or a point beside the start or the centre if it rests there.
Vector3d ArcCentreAction::GetTarget() const
{
    return GetCursorOff(RestsOn(*m_centre) ? *m_centre : *m_start);
}
