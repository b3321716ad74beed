#include "Tools/ZoomWindowAction.h"

#include "Model/UiText.h"

#include "Graphics/IGraphicsNode.h"
#include "HostUi/DrawingView.h"
#include "Journal/JournalManager.h"

using namespace vesk;

ZoomWindowAction::ZoomWindowAction(DrawingView& view) : m_view(view) {}

std::wstring ZoomWindowAction::GetViewText() const
{
    return m_corner.has_value() ? L"窗口缩放：单击对角点，或键入坐标；Esc 结束"_tr
                                : L"窗口缩放：单击第一个角点，或键入坐标；Esc 结束"_tr;
}

void ZoomWindowAction::OnBegin(IUiView*) {}

void ZoomWindowAction::OnMouseMove(const Vector3d& world)
{
    m_cursor = world;
}

void ZoomWindowAction::OnClick(const Vector3d& world)
{
    m_cursor = world;
    ReplayPoint(world, std::nullopt);
}

bool ZoomWindowAction::IsFinished() const
{
    return m_isFinished;
}

OwnerPtr<IGraphicsNodeGroup> ZoomWindowAction::CreateRubberBand() const
{
    if (!m_corner.has_value())
        return nullptr;
    const Vector3d corners[] = {*m_corner,
                                {m_cursor.x(), m_corner->y(), 0.0},
                                m_cursor,
                                {m_corner->x(), m_cursor.y(), 0.0}};
    OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();
    for (int i = 0; i < 4; ++i)
        opGroup->AddChild(
            IGraphicsLine::Create(corners[i], corners[(i + 1) % 4], GraphicsRole::RubberBand));
    return opGroup;
}

bool ZoomWindowAction::ReplayPoint(const Vector3d& world, const std::optional<int>& entity)
{
    if (entity.has_value() || (m_corner.has_value() && world == *m_corner))
        return false;
    JournalManager::GetInstance().Add(PointRecord{world, std::nullopt});
    m_isFinished = m_corner.has_value();
    if (m_isFinished)
        m_view.Fit(*m_corner, world);
    else
        m_corner = world;
    return true;
}
