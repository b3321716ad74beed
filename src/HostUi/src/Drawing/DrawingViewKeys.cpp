#include "Command/IActionManager.h"
#include "Drawing/CursorWalk.h"
#include "HostUi/DimensionInputController.h"
#include "HostUi/DrawingView.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace vesk
{

namespace
{

bool IsConfirmation(const QKeyEvent& event)
{
    const int key = event.key();
    const bool isPlain = !(event.modifiers() & ~Qt::KeypadModifier) && !event.isAutoRepeat();
    return isPlain && (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space);
}

}

void DrawingView::keyPressEvent(QKeyEvent* pEvent)
{
    if (pEvent->key() == Qt::Key_Escape && m_input.GetOpenField() == nullptr)
        EndWalk();
    if (m_input.OnViewKey(*pEvent) || MovePicture(*pEvent) || Walk(*pEvent))
        return;
    if (pEvent->key() == Qt::Key_Escape)
        OnFreeEscape();
    else if (IsPick(*pEvent))
        Pick(pEvent->modifiers());
    else if (IsConfirmation(*pEvent) && IActionManager::CurrentAction() == nullptr)
        OnFreeConfirm();
    else
        QWidget::keyPressEvent(pEvent);
}

double DrawingView::GetCursorStep() const
{
    constexpr double Pixels = 10.0;
    return Pixels * m_camera.GetWorldPerPixel();
}

/// True if the key moves or magnifies the picture.
bool DrawingView::MovePicture(const QKeyEvent& event)
{
    constexpr double ZoomStep = 2.0;
    constexpr double PanShare = 0.125;
    const std::optional<Vector3d> way = WayOf(event);
    if (event.matches(QKeySequence::ZoomIn))
        Magnify(ZoomStep);
    else if (event.matches(QKeySequence::ZoomOut))
        Magnify(1.0 / ZoomStep);
    else if (way.has_value() && event.modifiers().testFlag(Qt::ControlModifier))
    {
        m_camera.Pan(-way->x() * width() * PanShare, way->y() * height() * PanShare);
        OnCameraChanged();
    }
    else
        return false;
    return true;
}

/// True if the key moves the cursor.
bool DrawingView::Walk(const QKeyEvent& event)
{
    constexpr double FineShare = 0.1;
    const std::optional<Vector3d> way = WayOf(event);
    if (!way.has_value())
        return false;
    const bool isFine = event.modifiers().testFlag(Qt::ShiftModifier);
    const double step = GetCursorStep() * (isFine ? FineShare : 1.0);
    const QPointF centre = QRectF(rect()).center();
    if (!m_walked.has_value())
        m_restingMouse = QCursor::pos();
    const Vector3d from = ToWorld(m_cursor.value_or(centre));
    m_walked = NextGridPoint(m_walked.has_value() ? from : OnGrid(from, *way, step), *way, step);
    BringIntoView(*m_walked);
    SendMouse(QEvent::MouseMove, Qt::NoButton, Qt::NoModifier);
    update();
    return true;
}

bool DrawingView::IsPick(const QKeyEvent& event) const
{
    const bool isPlain = !(event.modifiers() & ~(Qt::ControlModifier | Qt::ShiftModifier));
    return m_walked.has_value() && isPlain && event.key() == Qt::Key_Space && !event.isAutoRepeat();
}

/// Clicks at the cursor; with Shift only presses, so that the next Space ends a drag. The view may
/// be gone after the press.
void DrawingView::Pick(Qt::KeyboardModifiers modifiers)
{
    const QPointer<DrawingView> pSelf(this);
    const bool isHeldBefore = std::exchange(m_isButtonHeld, false);
    m_isButtonHeld = !isHeldBefore && modifiers.testFlag(Qt::ShiftModifier) &&
                     IActionManager::CurrentAction() == nullptr;
    if (!isHeldBefore)
        SendMouse(QEvent::MouseButtonPress, Qt::LeftButton, modifiers & Qt::ControlModifier);
    if (pSelf != nullptr && m_walked.has_value() && !m_isButtonHeld)
        SendMouse(QEvent::MouseButtonRelease, Qt::LeftButton, modifiers & Qt::ControlModifier);
}

void DrawingView::EndWalk()
{
    if (!m_walked.has_value())
        return;
    m_walked.reset();
    m_isButtonHeld = false;
    update();
}

void DrawingView::BringIntoView(const Vector3d& world)
{
    constexpr double ViewEdge = 24.0;
    const QPointF pixel = ToPixel(world);
    const auto overhang = [](double place, double size) {
        return std::min(0.0, place - ViewEdge) + std::max(0.0, place - (size - ViewEdge));
    };
    const QPointF over(overhang(pixel.x(), width()), overhang(pixel.y(), height()));
    if (over.isNull())
        return;
    m_camera.Pan(-over.x(), -over.y());
    OnCameraChanged();
}

/// Whatever follows the mouse follows the keys.
void DrawingView::SendMouse(QEvent::Type type, Qt::MouseButton button,
                            Qt::KeyboardModifiers modifiers)
{
    const QPointF pixel = ToPixel(*m_walked);
    const QPointF onScreen = mapToGlobal(QPoint(0, 0)) + pixel;
    const bool isPressed = type == QEvent::MouseButtonPress || m_isButtonHeld;
    const Qt::MouseButtons pressed = isPressed ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, pixel, mapTo(window(), QPoint(0, 0)) + pixel, onScreen, button, pressed,
                      modifiers, Qt::MouseEventSynthesizedByApplication);
    QCoreApplication::sendEvent(this, &event);
}

/// The very point to which the arrow keys have moved the cursor, if the pixel is that of the
/// cursor.
Vector3d DrawingView::ToWorld(const QPointF& pixel) const
{
    const bool isWalked = m_walked.has_value() && pixel == ToPixel(*m_walked);
    return isWalked ? *m_walked : m_camera.ScreenToWorld(pixel.x(), pixel.y());
}

}
