#include "Tools/SelectionAction.h"

#include "Model/Picking.h"
#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Tools/ShapeGraphics.h"

#include "Graphics/IGraphicsNode.h"
#include "HostUi/QtText.h"
#include "Journal/JournalManager.h"

#include <algorithm>
#include <cstddef>
#include <utility>

using namespace vesk;

namespace
{

/// How many changed entities to preview; few enough for the preview to keep up with the cursor.
constexpr std::size_t MostShown = 500;

}

SelectionAction::SelectionAction(Workspace& workspace, const Prompts& prompts)
    : DrawingAction(workspace), m_prompts(prompts)
{}

std::wstring SelectionAction::GetViewText() const
{
    std::wstring next;
    if (IsNothingSelected())
        next = Tr(m_prompts.pick);
    else if (TakesEntities())
        next = Tr(m_prompts.pickOrPoint);
    else if (!HasFirstPoint())
        next = Tr(m_prompts.point);
    else
        next = GetNextText();
    return ToWide("%1：%2；Esc 结束"_tr.arg(ToQString(Tr(m_prompts.name)), ToQString(next)));
}

void SelectionAction::OnBegin(IUiView* pView)
{
    DrawingAction::OnBegin(pView);
    m_beganWithNothing = IsNothingSelected();
}

void SelectionAction::OnMouseMove(const Vector3d& world)
{
    m_hovered = TakesEntities() ? PickOther(world) : 0;
    DrawingAction::OnMouseMove(world);
    if (IsNothingSelected())
        GetWorkspace().snapper.Release();
}

void SelectionAction::OnClick(const Vector3d& world)
{
    OnMouseMove(world);
    if (m_hovered != 0)
        Pick(world, std::exchange(m_hovered, 0));
    else if (!IsNothingSelected())
        DrawingAction::OnClick(world);
}

bool SelectionAction::TakesPoint() const
{
    return !IsNothingSelected() && DrawingAction::TakesPoint();
}

bool SelectionAction::ReplayPoint(const Vector3d& world, const std::optional<int>& entity)
{
    if (entity.has_value())
        return TakesEntities() && Pick(world, *entity);
    return !IsNothingSelected() && DrawingAction::ReplayPoint(world, entity);
}

OwnerPtr<IGraphicsNodeGroup> SelectionAction::CreateRubberBand() const
{
    OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();
    if (const Entity* pHovered = GetWorkspace().sketch.Find(m_hovered))
        AddRubberBand(*opGroup, pHovered->shape);
    if (!IsNothingSelected() && HasFirstPoint())
        AddPreview(*opGroup);
    return opGroup;
}

IPickingTool::Click SelectionAction::GetClick() const
{
    if (m_hovered != 0)
        return Click::PicksEntity;
    return IsNothingSelected() ? Click::DoesNothing : Click::SetsPoint;
}

bool SelectionAction::IsNothingSelected() const
{
    return GetWorkspace().selection.IsEmpty();
}

SelectionAction::Shapes SelectionAction::MakeChanged(const Change& change) const
{
    const Workspace& workspace = GetWorkspace();
    Shapes changed;
    for (const int id : workspace.selection.GetIds())
        changed.emplace_back(id, change(workspace.sketch.Find(id)->shape));
    return changed;
}

bool SelectionAction::AddCopies(const Change& change, const std::wstring& stepName)
{
    Sketch& sketch = GetWorkspace().sketch;
    std::vector<Sketch::PenShape> copies;
    for (const auto& [id, shape] : MakeChanged(change))
        copies.emplace_back(shape, sketch.Find(id)->pen);
    return !sketch.Add(copies, stepName).empty();
}

bool SelectionAction::CanAddCopies(const Change& change) const
{
    const Shapes copies = MakeChanged(change);
    return !copies.empty() && std::all_of(copies.begin(), copies.end(),
                                          [](const auto& copy) { return IsDrawable(copy.second); });
}

void SelectionAction::AddChanged(IGraphicsNodeGroup& group, const Change& change) const
{
    const Workspace& workspace = GetWorkspace();
    const std::vector<int>& ids = workspace.selection.GetIds();
    const std::size_t shown = std::min(ids.size(), MostShown);
    for (std::size_t i = 0; i < shown; ++i)
        AddRubberBand(group, change(workspace.sketch.Find(ids[i])->shape));
}

bool SelectionAction::TakesEntities() const
{
    return IsNothingSelected() || (m_beganWithNothing && !HasFirstPoint());
}

/// The entity under the cursor if it is not selected yet; 0 if there is none.
int SelectionAction::PickOther(const Vector3d& world) const
{
    const int picked = PickEntity(GetWorkspace().sketch, world, GetView());
    return GetWorkspace().selection.Contains(picked) ? 0 : picked;
}

bool SelectionAction::Pick(const Vector3d& world, int entity)
{
    Workspace& workspace = GetWorkspace();
    if (!workspace.sketch.CanPick(entity) || workspace.selection.Contains(entity))
        return false;
    JournalManager::GetInstance().Add(PointRecord{world, entity});
    std::vector<int> ids = workspace.selection.GetIds();
    ids.push_back(entity);
    return workspace.selection.Select(ids);
}
