#include "Canvas.h"

#include <Command/ActionManager.h>
#include <Command/IAction.h>
#include <Command/IActionManager.h>
#include <Dimension/TemporaryDimensionMgr.h>
#include <Graphics/IGraphicsNode.h>
#include <HostUi/DimensionInputController.h>
#include <HostUi/ProvisionalPainter.h>
#include <HostUi/QtText.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>

using namespace vesk;

Canvas::Canvas(DimensionInputController& input) : m_input(input)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(600, 400);
    winId();
}

void Canvas::AddRoom(const QRectF& room)
{
    m_rooms.push_back(room);
    update();
    emit roomAdded(
        QString("%1 room, %2 x %3 mm").arg(m_rooms.size()).arg(room.width()).arg(room.height()));
}

void Canvas::SetViewText(const std::wstring& text)
{
    emit hintChanged(ToQString(text));
}

void Canvas::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.save();
    painter.translate(0, height());
    painter.scale(1.0 / CanvasMapping::Scale, -1.0 / CanvasMapping::Scale);
    painter.setPen(QPen(palette().color(QPalette::Text), 0)); // a pixel wide at any scale
    for (const QRectF& room : m_rooms)
        painter.drawRect(room);
    painter.restore();

    ProvisionalPainter provisional(painter, m_mapping, palette());
    if (const IAction* pAction = IActionManager::CurrentAction())
    {
        if (const OwnerPtr<IGraphicsNodeGroup> opRubberBand = pAction->CreateRubberBand())
            opRubberBand->Accept(provisional);
    }
    if (const IGraphicsNodeGroup* pDimensions = TemporaryDimensionMgr::GetInstance()->GetGraphics())
        pDimensions->Accept(provisional);
}

void Canvas::keyPressEvent(QKeyEvent* pEvent)
{
    if (!m_input.OnViewKey(*pEvent))
        QWidget::keyPressEvent(pEvent);
}

void Canvas::mouseMoveEvent(QMouseEvent* pEvent)
{
    ActionManager::ProcessMouseMove(this, ToWorld(pEvent->pos()));
}

void Canvas::mousePressEvent(QMouseEvent* pEvent)
{
    const Vector3d world = ToWorld(pEvent->pos());
    // A click while a value is being typed commits the value, in the direction of the click.
    if (m_input.GetActiveEditor() == nullptr)
        return ActionManager::ProcessClick(this, world);
    ActionManager::ProcessMouseMove(this, world);
    m_input.Commit();
}

/// While an action runs, Tab goes from one dimension to the other.
bool Canvas::focusNextPrevChild(bool isNext)
{
    return IActionManager::CurrentAction() == nullptr && QWidget::focusNextPrevChild(isNext);
}

Vector3d Canvas::ToWorld(const QPointF& position) const
{
    return m_mapping.ScreenToWorld(position.x(), position.y());
}
