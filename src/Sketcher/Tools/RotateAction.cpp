#include "Tools/RotateAction.h"

#include "Model/Polar.h"
#include "Model/ShapeRotation.h"
#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Tools/ShapeGraphics.h"

#include "Dimension/RotationTemporaryDimensionContext.h"
#include "Geometry/Constants.h"
#include "Graphics/IGraphicsNode.h"

using namespace vesk;

RotateAction::RotateAction(Workspace& workspace)
    : SelectionAction(workspace, {L"旋转"_source, L"单击要旋转的图元"_source,
                                  L"单击旋转中心，或再单击一并旋转的图元"_source,
                                  L"单击旋转中心，或键入坐标"_source})
{}

bool RotateAction::IsFinished() const
{
    return m_isFinished;
}

OwnerPtr<ITemporaryDimensionContext> RotateAction::CreateDimensionContext() const
{
    if (IsNothingSelected() || !m_from.has_value())
        return nullptr;
    return MakeOwner<RotationTemporaryDimensionContext>(Coordinate3d(), *m_centre, *m_from,
                                                        GetEnd());
}

bool RotateAction::HasFirstPoint() const
{
    return m_centre.has_value();
}

std::wstring RotateAction::GetNextText() const
{
    return m_from.has_value() ? L"单击目标方向上的一点，或键入角度（逆时针为正）"_tr
                              : L"单击起始方向上的一点，或键入坐标"_tr;
}

void RotateAction::AddPreview(IGraphicsNodeGroup& group) const
{
    AddRubberBand(group, LineShape{*m_centre, GetEnd()});
    if (m_from.has_value())
        AddChanged(group, TurnBy(GetValue(InputState::IS_CentralAngle)));
}

std::optional<Vector3d> RotateAction::GetStart() const
{
    return m_from.has_value() ? m_from : m_centre;
}

Vector3d RotateAction::GetEnd() const
{
    if (!m_from.has_value())
        return GetCursor();
    if (const std::optional<double> angle = GetTyped(InputState::IS_CentralAngle))
        return Rotated(*m_from, *m_centre, *angle);
    return GetCursorOff(RestsOn(*m_centre) ? *m_centre : *m_from);
}

bool RotateAction::RestsOnStart() const
{
    return DrawingAction::RestsOnStart() || (m_centre.has_value() && RestsOn(*m_centre));
}

bool RotateAction::Expects(InputState field) const
{
    return field == InputState::IS_CentralAngle && m_from.has_value() && !IsNothingSelected();
}

double RotateAction::ReadCursor(InputState) const
{
    return AngleBetween(*m_from - *m_centre, GetEnd() - *m_centre);
}

bool RotateAction::CanFinish(const Vector3d& end) const
{
    return GetWorkspace().sketch.CanReplace(MakeChanged(TurnBy(GetAngleTo(end))));
}

/// Sets the centre, then the first direction, then rotates.
bool RotateAction::Finish(const Vector3d& end)
{
    if (!m_centre.has_value())
    {
        m_centre = end;
        return true;
    }
    if (Vector3dUtils::IsEqual(end, *m_centre, Constants::DOUBLE_EPS))
        return false;
    if (!m_from.has_value())
    {
        m_from = end;
        return true;
    }
    m_isFinished =
        GetWorkspace().sketch.Replace(MakeChanged(TurnBy(GetAngleTo(end))), L"旋转"_source);
    return m_isFinished;
}

double RotateAction::GetAngleTo(const Vector3d& end) const
{
    const std::optional<double> typed = GetTyped(InputState::IS_CentralAngle);
    return typed.has_value() ? *typed : AngleBetween(*m_from - *m_centre, end - *m_centre);
}

RotateAction::Change RotateAction::TurnBy(double degrees) const
{
    return [centre = *m_centre, degrees](const Shape& shape) {
        return Rotated(shape, centre, degrees);
    };
}
