#include "Tools/MoveAction.h"

#include "Model/Polar.h"
#include "Model/ShapeTransform.h"
#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Tools/ShapeGraphics.h"

#include "Graphics/IGraphicsNode.h"

using namespace vesk;

namespace
{

constexpr const wchar_t* MoveName = L"移动"_source;
constexpr const wchar_t* CopyName = L"复制到"_source;

}

MoveAction::MoveAction(Workspace& workspace)
    : MoveAction(workspace,
                 {MoveName, L"单击要移动的图元"_source, L"单击基点，或再单击一并移动的图元"_source,
                  L"单击基点，或键入坐标"_source})
{}

MoveAction::MoveAction(Workspace& workspace, const Prompts& prompts)
    : TwoPointAction(workspace, prompts)
{}

std::wstring MoveAction::GetNextText() const
{
    return L"单击目标点，或键入距离（Tab 切换到角度）"_tr;
}

void MoveAction::AddPreview(IGraphicsNodeGroup& group) const
{
    AddRubberBand(group, LineShape{GetFirstPoint(), GetEnd()});
    AddChanged(group, MoveTo(GetEnd()));
}

/// A copy must be drawable, and apart from its original, too.
bool MoveAction::CanFinish(const Vector3d& end) const
{
    return GetWorkspace().sketch.CanReplace(MakeChanged(MoveTo(end)));
}

bool MoveAction::Apply(const Vector3d& end)
{
    return GetWorkspace().sketch.Replace(MakeChanged(MoveTo(end)), MoveName);
}

MoveAction::Change MoveAction::MoveTo(const Vector3d& end) const
{
    return [way = GetWayTo(end)](const Shape& shape) { return Translated(shape, way); };
}

/// Values are exact; the end point is rounded.
Vector3d MoveAction::GetWayTo(const Vector3d& end) const
{
    const std::optional<double> length = GetTyped(InputState::IS_Length);
    const std::optional<double> angle = GetTyped(InputState::IS_Angle);
    if (length.has_value() && angle.has_value())
        return *length * DirectionOf(*angle);
    return end - GetFirstPoint();
}

CopyAction::CopyAction(Workspace& workspace)
    : MoveAction(workspace,
                 {CopyName, L"单击要复制的图元"_source, L"单击基点，或再单击一并复制的图元"_source,
                  L"单击基点，或键入坐标"_source})
{}

bool CopyAction::Apply(const Vector3d& end)
{
    return AddCopies(MoveTo(end), CopyName);
}
