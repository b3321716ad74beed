#include "Tools/MirrorAction.h"

#include "Model/Polar.h"
#include "Model/ShapeTransform.h"
#include "Model/UiText.h"
#include "Tools/ShapeGraphics.h"

#include "Graphics/IGraphicsNode.h"

using namespace vesk;

namespace
{

constexpr const wchar_t* MirrorName = L"镜像"_source;

}

MirrorAction::MirrorAction(Workspace& workspace)
    : TwoPointAction(workspace, {MirrorName, L"单击要镜像的图元"_source,
                                 L"单击镜像轴上的第一点，或再单击一并镜像的图元"_source,
                                 L"单击镜像轴上的第一点"_source})
{}

std::wstring MirrorAction::GetNextText() const
{
    return L"单击镜像轴上的第二点，或键入距离（Tab 切换到角度）"_tr;
}

void MirrorAction::AddPreview(IGraphicsNodeGroup& group) const
{
    AddRubberBand(group, LineShape{GetFirstPoint(), GetEnd()});
    if (HasValues() || !RestsOnStart())
        AddChanged(group, MirrorTo(GetEnd()));
}

bool MirrorAction::CanFinish(const Vector3d& end) const
{
    return IsDrawable(LineShape{GetFirstPoint(), end}) && CanAddCopies(MirrorTo(end));
}

bool MirrorAction::Apply(const Vector3d& end)
{
    return AddCopies(MirrorTo(end), MirrorName);
}

/// A typed angle is exact; the end point is rounded.
MirrorAction::Change MirrorAction::MirrorTo(const Vector3d& end) const
{
    const Vector3d first = GetFirstPoint();
    const std::optional<double> angle = GetTyped(InputState::IS_Angle);
    const Vector3d direction = angle.has_value() ? DirectionOf(*angle) : Vector3d(end - first);
    return [first, direction](const Shape& shape) { return Mirrored(shape, first, direction); };
}
