#include "Tools/RotateAction.h"

#include "Model/Picking.h"
#include "Model/Polar.h"
#include "Model/ShapeRotation.h"
#include "Model/Workspace.h"
#include "Tools/ShapeGraphics.h"

#include "Dimension/RotationTemporaryDimensionContext.h"
#include "Geometry/Constants.h"
#include "Graphics/IGraphicsNode.h"
#include "Journal/JournalManager.h"

#include <algorithm>
#include <cstddef>
#include <utility>

using namespace vesk;

namespace
{

/// How many rotated entities to preview; few enough for the preview to keep up with the cursor.
constexpr std::size_t MostShown = 500;

}

RotateAction::RotateAction(Workspace& workspace) : DrawingAction(workspace) {}

std::wstring RotateAction::GetViewText() const
{
    if (IsNothingSelected())
        return L"旋转：单击要旋转的图元；Esc 结束";
    if (TakesEntities())
        return L"旋转：单击旋转中心，或再单击一并旋转的图元；Esc 结束";
    if (!m_centre.has_value())
        return L"旋转：单击旋转中心；Esc 结束";
    if (!m_from.has_value())
        return L"旋转：单击起始方向上的一点；Esc 结束";
    return L"旋转：单击目标方向上的一点，或键入角度（逆时针为正）；Esc 结束";
}

void RotateAction::OnBegin(IUiView* pView)
{
    DrawingAction::OnBegin(pView);
    m_beganWithNothing = IsNothingSelected();
}

void RotateAction::OnMouseMove(const Vector3d& world)
{
    m_hovered = TakesEntities() ? PickOther(world) : 0;
    DrawingAction::OnMouseMove(world);
    if (IsNothingSelected())
        GetWorkspace().snapper.Release();
}

void RotateAction::OnClick(const Vector3d& world)
{
    OnMouseMove(world);
    if (m_hovered != 0)
        Pick(world, std::exchange(m_hovered, 0));
    else if (!IsNothingSelected())
        DrawingAction::OnClick(world);
}

bool RotateAction::IsFinished() const
{
    return m_isFinished;
}

bool RotateAction::ReplayPoint(const Vector3d& world, const std::optional<int>& entity)
{
    if (entity.has_value())
        return TakesEntities() && Pick(world, *entity);
    return !IsNothingSelected() && DrawingAction::ReplayPoint(world, entity);
}

OwnerPtr<ITemporaryDimensionContext> RotateAction::CreateDimensionContext() const
{
    if (IsNothingSelected() || !m_from.has_value())
        return nullptr;
    return MakeOwner<RotationTemporaryDimensionContext>(Coordinate3d(), *m_centre, *m_from,
                                                        GetEnd());
}

OwnerPtr<IGraphicsNodeGroup> RotateAction::CreateRubberBand() const
{
    const Sketch& sketch = GetWorkspace().sketch;
    OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();
    if (const Entity* pHovered = sketch.Find(m_hovered))
        AddRubberBand(*opGroup, pHovered->shape);
    if (IsNothingSelected() || !m_centre.has_value())
        return opGroup;
    AddRubberBand(*opGroup, LineShape{*m_centre, GetEnd()});
    if (!m_from.has_value())
        return opGroup;
    const double degrees = GetValue(InputState::IS_CentralAngle);
    const std::vector<int>& ids = GetWorkspace().selection.GetIds();
    const std::size_t shown = std::min(ids.size(), MostShown);
    for (std::size_t i = 0; i < shown; ++i)
        AddRubberBand(*opGroup, Rotated(sketch.Find(ids[i])->shape, *m_centre, degrees));
    return opGroup;
}

IPickingTool::Click RotateAction::GetClick() const
{
    if (m_hovered != 0)
        return Click::PicksEntity;
    return IsNothingSelected() ? Click::DoesNothing : Click::SetsPoint;
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
    return GetWorkspace().sketch.CanReplace(MakeTurned(GetAngleTo(end)));
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
    m_isFinished = GetWorkspace().sketch.Replace(MakeTurned(GetAngleTo(end)));
    return m_isFinished;
}

/// Also true if an undo has removed the selected entities.
bool RotateAction::IsNothingSelected() const
{
    return GetWorkspace().selection.IsEmpty();
}

bool RotateAction::TakesEntities() const
{
    return IsNothingSelected() || (m_beganWithNothing && !m_centre.has_value());
}

/// The entity under the cursor if it is not selected yet; 0 if there is none.
int RotateAction::PickOther(const Vector3d& world) const
{
    const int picked = PickEntity(GetWorkspace().sketch, world, GetView());
    return GetWorkspace().selection.Contains(picked) ? 0 : picked;
}

bool RotateAction::Pick(const Vector3d& world, int entity)
{
    Workspace& workspace = GetWorkspace();
    if (workspace.sketch.Find(entity) == nullptr || workspace.selection.Contains(entity))
        return false;
    JournalManager::GetInstance().Add(PointRecord{world, entity});
    std::vector<int> ids = workspace.selection.GetIds();
    ids.push_back(entity);
    return workspace.selection.Select(ids);
}

double RotateAction::GetAngleTo(const Vector3d& end) const
{
    const std::optional<double> typed = GetTyped(InputState::IS_CentralAngle);
    return typed.has_value() ? *typed : AngleBetween(*m_from - *m_centre, end - *m_centre);
}

/// The selected entities, rotated.
std::vector<std::pair<int, Shape>> RotateAction::MakeTurned(double degrees) const
{
    const Workspace& workspace = GetWorkspace();
    std::vector<std::pair<int, Shape>> turned;
    for (const int id : workspace.selection.GetIds())
        turned.emplace_back(id, Rotated(workspace.sketch.Find(id)->shape, *m_centre, degrees));
    return turned;
}
