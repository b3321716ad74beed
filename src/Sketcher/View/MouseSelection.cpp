#include "View/MouseSelection.h"

#include "Model/AreaSelection.h"
#include "Model/Picking.h"
#include "Model/Workspace.h"

#include "HostUi/Contrast.h"
#include "HostUi/DrawingView.h"
#include "HostUi/ViewPixel.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

using namespace vesk;

MouseSelection::MouseSelection(Workspace& workspace, const DrawingView& view)
    : m_workspace(workspace), m_view(view)
{}

void MouseSelection::Press(const Vector3d& world, Qt::KeyboardModifiers modifiers)
{
    m_press = Pressed{world, world, modifiers};
}

void MouseSelection::MoveTo(const Vector3d& world)
{
    if (m_press.has_value())
        m_press->cursor = world;
}

void MouseSelection::Release(const Vector3d& world)
{
    if (!m_press.has_value())
        return;
    m_press->cursor = world;
    const bool isDragged = IsDragged();
    const Pressed press = *m_press;
    m_press.reset();
    if (isDragged)
        SelectBetween(press);
    else
        SelectAt(press);
}

/// The colours and line styles that are customary in drawing programs.
void MouseSelection::Paint(QPainter& painter) const
{
    if (!IsDragged())
        return;
    const bool isWindow = m_press->IsToTheRight();
    const QColor customary = isWindow ? QColor(0x2f, 0x7d, 0xe1) : QColor(0x2e, 0x9e, 0x4f);
    const QColor colour = vesk::Legible(customary, m_view.palette());
    QColor fill = colour;
    fill.setAlpha(40);
    painter.save();
    painter.setPen(QPen(colour, 1.0, isWindow ? Qt::SolidLine : Qt::DashLine));
    painter.setBrush(fill);
    painter.drawRect(QRectF(ToPixel(m_view.GetCamera(), m_press->start),
                            ToPixel(m_view.GetCamera(), m_press->cursor))
                         .normalized());
    painter.restore();
}

bool MouseSelection::IsDragged() const
{
    if (!m_press.has_value())
        return false;
    const Vector3d way = (m_press->cursor - m_press->start) / m_view.GetCamera().GetWorldPerPixel();
    return std::round(way.lpNorm<1>()) >= QApplication::startDragDistance();
}

void MouseSelection::SelectAt(const Pressed& press)
{
    const int picked = PickEntity(m_workspace.sketch, press.start, &m_view);
    std::vector<int> ids = press.IsAdding() ? m_workspace.selection.GetIds() : std::vector<int>();
    const auto found = std::find(ids.begin(), ids.end(), picked);
    if (found != ids.end())
        ids.erase(found);
    else if (picked != 0)
        ids.push_back(picked);
    m_workspace.selection.Select(ids);
}

void MouseSelection::SelectBetween(const Pressed& press)
{
    Selection& selection = m_workspace.selection;
    const AreaRule rule = press.IsToTheRight() ? AreaRule::Holds : AreaRule::Touches;
    const Area area = Area::Between(press.start, press.cursor);
    std::vector<int> ids = press.IsAdding() ? selection.GetIds() : std::vector<int>();
    for (const int id : FindInArea(m_workspace.sketch, area, rule))
    {
        if (!press.IsAdding() || !selection.Contains(id))
            ids.push_back(id);
    }
    selection.Select(ids);
}
