#include "Tools/MirrorAction.h"

#include "Model/Polar.h"
#include "Model/ShapeTransform.h"
#include "Model/Workspace.h"
#include "Tools/ShapeGraphics.h"

#include "Dimension/ITemporaryDimensionContext.h"
#include "Graphics/IGraphicsNode.h"

using namespace vesk;

MirrorAction::MirrorAction(Workspace& workspace)
    : SelectionAction(workspace, L"镜像", L"镜像轴上的第一点")
{}

bool MirrorAction::IsFinished() const
{
    return m_isFinished;
}

OwnerPtr<ITemporaryDimensionContext> MirrorAction::CreateDimensionContext() const
{
    if (IsNothingSelected() || !m_onAxis.has_value())
        return nullptr;
    return MakeStraightContext();
}

bool MirrorAction::HasFirstPoint() const
{
    return m_onAxis.has_value();
}

std::wstring MirrorAction::GetNextText() const
{
    return L"单击镜像轴上的第二点，或键入距离（Tab 切换到角度）";
}

void MirrorAction::AddPreview(IGraphicsNodeGroup& group) const
{
    AddRubberBand(group, LineShape{*m_onAxis, GetEnd()});
    if (HasValues() || !RestsOnStart())
        AddChanged(group, MirrorTo(GetEnd()));
}

std::optional<Vector3d> MirrorAction::GetStart() const
{
    return m_onAxis;
}

Vector3d MirrorAction::GetEnd() const
{
    return GetStraightEnd();
}

bool MirrorAction::Expects(InputState field) const
{
    const bool isOwn = field == InputState::IS_Length || field == InputState::IS_Angle;
    return isOwn && m_onAxis.has_value() && !IsNothingSelected();
}

double MirrorAction::ReadCursor(InputState field) const
{
    return ReadStraight(field);
}

bool MirrorAction::CanFinish(const Vector3d& end) const
{
    return IsDrawable(LineShape{*m_onAxis, end}) && CanAddCopies(MirrorTo(end));
}

/// Sets the first point of the axis, then mirrors.
bool MirrorAction::Finish(const Vector3d& end)
{
    if (!m_onAxis.has_value())
    {
        m_onAxis = end;
        return true;
    }
    m_isFinished = CanFinish(end) && AddCopies(MirrorTo(end), L"镜像");
    return m_isFinished;
}

/// A typed angle is exact; the end point is rounded.
MirrorAction::Change MirrorAction::MirrorTo(const Vector3d& end) const
{
    const std::optional<double> angle = GetTyped(InputState::IS_Angle);
    const Vector3d direction = angle.has_value() ? DirectionOf(*angle) : Vector3d(end - *m_onAxis);
    return [onAxis = *m_onAxis, direction](const Shape& shape) {
        return Mirrored(shape, onAxis, direction);
    };
}
