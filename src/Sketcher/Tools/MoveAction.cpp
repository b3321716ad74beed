#include "Tools/MoveAction.h"

#include "Model/Polar.h"
#include "Model/ShapeTransform.h"
#include "Model/Workspace.h"
#include "Tools/ShapeGraphics.h"

#include "Dimension/ITemporaryDimensionContext.h"
#include "Graphics/IGraphicsNode.h"

using namespace vesk;

namespace
{

constexpr wchar_t MoveName[] = L"移动";
constexpr wchar_t CopyName[] = L"复制";

}

MoveAction::MoveAction(Workspace& workspace) : MoveAction(workspace, Mode::Move) {}

MoveAction::MoveAction(Workspace& workspace, Mode mode)
    : SelectionAction(workspace, mode == Mode::Move ? MoveName : CopyName, L"基点"), m_mode(mode)
{}

bool MoveAction::IsFinished() const
{
    return m_isFinished;
}

OwnerPtr<ITemporaryDimensionContext> MoveAction::CreateDimensionContext() const
{
    if (IsNothingSelected() || !m_base.has_value())
        return nullptr;
    return MakeStraightContext();
}

bool MoveAction::HasFirstPoint() const
{
    return m_base.has_value();
}

std::wstring MoveAction::GetNextText() const
{
    return L"单击目标点，或键入距离（Tab 切换到角度）";
}

void MoveAction::AddPreview(IGraphicsNodeGroup& group) const
{
    AddRubberBand(group, LineShape{*m_base, GetEnd()});
    AddChanged(group, MoveTo(GetEnd()));
}

std::optional<Vector3d> MoveAction::GetStart() const
{
    return m_base;
}

Vector3d MoveAction::GetEnd() const
{
    return GetStraightEnd();
}

bool MoveAction::Expects(InputState field) const
{
    const bool isOwn = field == InputState::IS_Length || field == InputState::IS_Angle;
    return isOwn && m_base.has_value() && !IsNothingSelected();
}

double MoveAction::ReadCursor(InputState field) const
{
    return ReadStraight(field);
}

bool MoveAction::CanFinish(const Vector3d& end) const
{
    const Shapes moved = MakeChanged(MoveTo(end));
    // A copy must be drawable, and apart from its original.
    return GetWorkspace().sketch.CanReplace(moved);
}

/// Sets the base point, then moves or copies.
bool MoveAction::Finish(const Vector3d& end)
{
    if (!m_base.has_value())
    {
        m_base = end;
        return true;
    }
    if (!CanFinish(end))
        return false;
    if (m_mode == Mode::Copy)
        return AddCopies(MoveTo(end), CopyName);
    m_isFinished = GetWorkspace().sketch.Replace(MakeChanged(MoveTo(end)), MoveName);
    return m_isFinished;
}

/// Values are exact; the end point is rounded.
Vector3d MoveAction::GetWayTo(const Vector3d& end) const
{
    const std::optional<double> length = GetTyped(InputState::IS_Length);
    const std::optional<double> angle = GetTyped(InputState::IS_Angle);
    if (length.has_value() && angle.has_value())
        return *length * DirectionOf(*angle);
    return end - *m_base;
}

MoveAction::Change MoveAction::MoveTo(const Vector3d& end) const
{
    return [way = GetWayTo(end)](const Shape& shape) { return Translated(shape, way); };
}
