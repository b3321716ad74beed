#include "Tools/CircleAction.h"

#include "Model/Polar.h"
#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Tools/ShapeGraphics.h"

#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "Graphics/IGraphicsNode.h"

using namespace vesk;

CircleAction::CircleAction(Workspace& workspace) : DrawingAction(workspace) {}

std::wstring CircleAction::GetViewText() const
{
    return m_centre.has_value() ? L"圆：单击圆上一点，或键入半径；Esc 结束"_tr
                                : L"圆：单击圆心，或键入坐标；Esc 结束"_tr;
}

/// Describes the circle by three of its points, the last of them towards the cursor.
OwnerPtr<ITemporaryDimensionContext> CircleAction::CreateDimensionContext() const
{
    if (!m_centre.has_value())
        return nullptr;
    const Vector3d spoke = GetEnd() - *m_centre;
    const Vector3d across = QuarterTurned(spoke);
    return MakeOwner<RadiusTemporaryDimensionContext>(Coordinate3d(), *m_centre + across,
                                                      *m_centre - across, *m_centre + spoke);
}

OwnerPtr<IGraphicsNodeGroup> CircleAction::CreateRubberBand() const
{
    if (!m_centre.has_value())
        return nullptr;
    OwnerPtr<IGraphicsNodeGroup> opGroup =
        MakeRubberBand(CircleShape{*m_centre, GetValue(InputState::IS_Radius)});
    AddRubberBand(*opGroup, LineShape{*m_centre, GetEnd()});
    return opGroup;
}

std::optional<Vector3d> CircleAction::GetStart() const
{
    return m_centre;
}

Vector3d CircleAction::GetEnd() const
{
    if (!m_centre.has_value())
        return GetCursor();
    const Vector3d cursor = GetCursorOff(*m_centre);
    if (!HasValues())
        return cursor;
    return *m_centre + GetValue(InputState::IS_Radius) * (cursor - *m_centre).normalized();
}

bool CircleAction::Expects(InputState field) const
{
    return field == InputState::IS_Radius && m_centre.has_value();
}

double CircleAction::ReadCursor(InputState) const
{
    return (GetCursorOff(*m_centre) - *m_centre).norm();
}

bool CircleAction::CanFinish(const Vector3d& end) const
{
    return IsDrawable(MakeCircle(end));
}

/// Sets the centre, then draws the circle.
bool CircleAction::Finish(const Vector3d& end)
{
    if (!m_centre.has_value())
    {
        m_centre = end;
        return true;
    }
    if (GetWorkspace().sketch.Add(MakeCircle(end)) == 0)
        return false;
    m_centre.reset();
    return true;
}

CircleShape CircleAction::MakeCircle(const Vector3d& end) const
{
    const std::optional<double> typed = GetTyped(InputState::IS_Radius);
    return {*m_centre, typed.has_value() ? *typed : (end - *m_centre).norm()};
}
