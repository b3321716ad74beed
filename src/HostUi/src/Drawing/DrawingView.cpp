#include "HostUi/DrawingView.h"

#include "Accessibility/AccessibleTexts.h"
#include "Command/ActionManager.h"
#include "Command/IAction.h"
#include "Command/IActionManager.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Drawing/CursorWalk.h"
#include "Drawing/ModelPicture.h"
#include "HostUi/DimensionInputController.h"
#include "HostUi/ProvisionalPainter.h"
#include "HostUi/QtText.h"
#include "HostUi/QtVersions.h"
#include "HostUi/ViewPixel.h"
#include "Input/MemberScope.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QTransform>

#include <cmath>
#include <utility>

namespace vesk
{

namespace
{

/// False for what the view sends itself.
bool IsOfMouse(const QMouseEvent& event)
{
    return event.source() != Qt::MouseEventSynthesizedByApplication;
}

}

DrawingView::DrawingView(std::uint32_t id, DimensionInputController& input, QWidget* pParent)
    : QWidget(pParent), m_id(id), m_input(input), m_pPicture(std::make_unique<ModelPicture>())
{
    m_nextSlice.setSingleShot(true);
    connect(&m_nextSlice, &QTimer::timeout, this, &DrawingView::OnSliceDue);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    SetAccessibleRole(*this, QAccessible::Canvas);
    // The host identifies views by their native window.
    winId();
}

DrawingView::~DrawingView() = default;

QSize DrawingView::minimumSizeHint() const
{
    return {300, 200};
}

std::uint32_t DrawingView::GetId() const
{
    return m_id;
}

/// Created anew if there is none: Qt 6 destroys the native windows in a window that is closed.
WindowId DrawingView::GetWindowId() const
{
    return winId();
}

IModelView* DrawingView::GetModelView() const
{
    return &m_camera;
}

void DrawingView::SetViewText(const std::wstring& text)
{
    const QString viewText = ToQString(text);
    if (viewText == m_viewText)
        return;
    m_viewText = viewText;
    emit viewTextChanged(m_viewText);
}

void DrawingView::Activate()
{
    if (!isVisible())
        return;
    window()->activateWindow();
    setFocus(Qt::OtherFocusReason);
}

void DrawingView::Redraw()
{
    update();
}

void DrawingView::Fit(const Vector3d& corner, const Vector3d& oppositeCorner)
{
    m_camera.Fit(corner, oppositeCorner);
    OnCameraChanged();
}

void DrawingView::Magnify(double factor)
{
    m_camera.ZoomAbout(width() / 2.0, height() / 2.0, factor);
    OnCameraChanged();
}

void DrawingView::SetPixelsPerUnit(double devicePixels)
{
    m_camera.SetWorldPerPixel(devicePixelRatioF() / devicePixels);
    OnCameraChanged();
}

bool DrawingView::IsWhole() const
{
    return m_pPicture->IsFinished() && !m_isCameraMoved;
}

void DrawingView::TellCursor()
{
    if (!m_cursor.has_value())
        return;
    const Vector3d world = ToWorld(*m_cursor);
    emit cursorMoved(world.x(), world.y());
}

void DrawingView::PassCursor()
{
    if (m_cursor.has_value())
        ActionManager::ProcessMouseMove(this, ToWorld(*m_cursor));
}

QPointF DrawingView::ToPixel(const Vector3d& world) const
{
    return vesk::ToPixel(m_camera, world);
}

void DrawingView::UpdateModel()
{
    m_pPicture->Renew();
    update();
}

void DrawingView::SetTop(std::size_t position)
{
    m_pPicture->SetTop(position);
}

void DrawingView::UpdateTop()
{
    m_pPicture->RenewTop();
    update();
}

void DrawingView::ExtendModel()
{
    m_pPicture->Extend();
    update();
}

void DrawingView::UpdateCursor()
{
    const QCursor shape = m_drag == Drag::Pan ? Qt::ClosedHandCursor : GetRestingCursor();
    if (shape.shape() != cursor().shape())
        setCursor(shape);
}

void DrawingView::changeEvent(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::PaletteChange)
    {
        DropPicture();
        update();
    }
    QWidget::changeEvent(pEvent);
}

bool DrawingView::event(QEvent* pEvent)
{
    // While the window system has not moved the keyboard yet, the field says which keys it needs.
    QLineEdit* pField =
        pEvent->type() == QEvent::ShortcutOverride ? m_input.GetOpenField() : nullptr;
    // What a field in the view does not need comes back here.
    if (pField == nullptr || pEvent == m_pForwarded)
        return QWidget::event(pEvent);
    const MemberScope<const QEvent> forwarded(*this, m_pForwarded, pEvent);
    pEvent->ignore();
    QCoreApplication::sendEvent(pField, pEvent);
    return true;
}

bool DrawingView::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    // The editor floats in a window of its own and must follow when the view's window moves.
    if (pWatched == m_pWatchedWindow && pEvent->type() == QEvent::Move)
        OnCameraChanged();
    return QWidget::eventFilter(pWatched, pEvent);
}

bool DrawingView::focusNextPrevChild(bool isNext)
{
    // While an action runs, Tab belongs to the dimensions.
    return IActionManager::CurrentAction() == nullptr && QWidget::focusNextPrevChild(isNext);
}

void DrawingView::leaveEvent(QEvent* pEvent)
{
    if (!m_walked.has_value())
    {
        m_cursor.reset();
        emit cursorLeft();
    }
    QWidget::leaveEvent(pEvent);
}

void DrawingView::mouseMoveEvent(QMouseEvent* pEvent)
{
    if (IsOfMouse(*pEvent))
    {
        // The toolkit sends moves also when something else has moved.
        if (m_walked.has_value() && GlobalPositionOf(*pEvent) == m_restingMouse)
            return;
        EndWalk();
    }
    m_cursor = PositionOf(*pEvent);
    if (m_drag == Drag::Pan)
    {
        const QPointF moved = PositionOf(*pEvent) - m_dragPosition;
        m_dragPosition = PositionOf(*pEvent);
        m_camera.Pan(moved.x(), moved.y());
        OnCameraChanged();
        return;
    }
    TellCursor();
    PassCursor();
}

void DrawingView::mousePressEvent(QMouseEvent* pEvent)
{
    if (IsOfMouse(*pEvent))
        EndWalk();
    if (pEvent->button() == Qt::MiddleButton)
    {
        m_drag = Drag::Pan;
        m_dragPosition = PositionOf(*pEvent);
        UpdateCursor();
    }
    if (pEvent->button() == Qt::LeftButton)
        OnClick(*pEvent);
}

void DrawingView::mouseReleaseEvent(QMouseEvent* pEvent)
{
    if (pEvent->button() != Qt::MiddleButton)
        return;
    m_drag = Drag::None;
    UpdateCursor();
}

void DrawingView::paintEvent(QPaintEvent*)
{
    if (m_pPicture->GetShown().devicePixelRatioF() != devicePixelRatioF())
        DropPicture();
    if (std::exchange(m_isCameraMoved, false))
        FollowCamera();
    // What one slice can show is never seen half painted; further slices leave time for events.
    if (!m_nextSlice.isActive() || m_isPaintedAtOnce)
        PaintSlices();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPixmap(0, 0, m_pPicture->GetShown());

    ProvisionalPainter provisional(painter, m_camera, palette());
    if (const IAction* pAction = IActionManager::CurrentAction())
    {
        if (const OwnerPtr<IGraphicsNodeGroup> opRubberBand = pAction->CreateRubberBand())
            opRubberBand->Accept(provisional);
    }
    if (const IGraphicsNodeGroup* pDimensions = TemporaryDimensionMgr::GetInstance()->GetGraphics())
        pDimensions->Accept(provisional);
    PaintOverlay(painter);
    if (m_walked.has_value())
        PaintWalkedCursor(painter, ToPixel(*m_walked), palette());
}

void DrawingView::resizeEvent(QResizeEvent*)
{
    m_camera.SetSize(width(), height());
    OnCameraChanged();
}

void DrawingView::showEvent(QShowEvent* pEvent)
{
    if (!m_hasScale)
    {
        // Initially one unit is one device pixel, on every screen.
        m_hasScale = true;
        m_camera.SetWorldPerPixel(devicePixelRatioF());
    }
    if (m_pWatchedWindow != window())
    {
        m_pWatchedWindow = window();
        m_pWatchedWindow->installEventFilter(this);
    }
    QWidget::showEvent(pEvent);
}

void DrawingView::wheelEvent(QWheelEvent* pEvent)
{
    constexpr double StepsPerDoubling = 480.0;
    const double factor = std::pow(2.0, pEvent->angleDelta().y() / StepsPerDoubling);
    EndWalk();
    m_cursor = pEvent->position();
    m_camera.ZoomAbout(pEvent->position().x(), pEvent->position().y(), factor);
    OnCameraChanged();
    pEvent->accept();
}

void DrawingView::OnCameraChanged()
{
    if (m_walked.has_value())
        m_cursor = ToPixel(*m_walked);
    ActionManager::RenewViewInput(this);
    m_isCameraMoved = true;
    m_nextSlice.stop();
    update();
    TellCursor();
}

void DrawingView::DropPicture()
{
    m_pPicture->Drop();
    m_nextSlice.stop();
}

QPixmap DrawingView::MakeGround() const
{
    const double ratio = devicePixelRatioF();
    QPixmap ground(size() * ratio);
    ground.setDevicePixelRatio(ratio);
    ground.fill(palette().color(QPalette::Base));
    return ground;
}

/// How what the picture shows has moved since it was painted or moved last. Moves it by whole
/// pixels of the screen, which leaves them as they are, and remembers what that lacks.
QTransform DrawingView::TakePictureMove()
{
    const double scale = m_pictureCamera.GetWorldPerPixel() / m_camera.GetWorldPerPixel();
    const QPointF origin = ToPixel(m_pictureCamera.ScreenToWorld(0.0, 0.0));
    m_pictureCamera = m_camera;
    if (scale != 1.0)
        return {scale, 0.0, 0.0, scale, origin.x(), origin.y()};
    const double ratio = devicePixelRatioF();
    const QPointF shift(std::round(origin.x() * ratio) / ratio,
                        std::round(origin.y() * ratio) / ratio);
    m_pictureCamera.Pan(shift.x() - origin.x(), shift.y() - origin.y());
    return QTransform::fromTranslate(shift.x(), shift.y());
}

/// Moves a picture that would take long to paint again.
void DrawingView::FollowCamera()
{
    // What is moved so far has nothing to show.
    constexpr double MostScale = 30.0;
    const QTransform move = TakePictureMove();
    const bool isNear = move.m11() < MostScale && move.m11() > 1.0 / MostScale &&
                        move.mapRect(QRectF(rect())).intersects(rect());
    if (m_pPicture->IsSmall() || m_isPaintedAtOnce || m_pPicture->GetShown().isNull() || !isNear)
        return m_pPicture->Drop();
    m_pPicture->Move(move, MakeGround());
    if (m_pPicture->HasGaps())
        PaintSlice();
    m_nextSlice.start();
}

/// Paints what comes next: what is missing beside a picture that was moved, then the whole model.
void DrawingView::PaintSlice()
{
    const auto paintPart = [this](QPainter& painter, const QRectF& area, std::size_t begin) {
        return PaintModel(painter, area, begin);
    };
    if (m_pPicture->HasGaps() && !m_isPaintedAtOnce)
        return m_pPicture->FillGaps(paintPart);
    if (!m_pPicture->IsBegun())
        m_pPicture->Begin(MakeGround());
    m_pPicture->PaintSlice(paintPart);
    if (m_pPicture->IsFinished())
        m_pictureCamera = m_camera;
}

/// Paints a slice, if the model is not painted yet, and sees to the rest.
void DrawingView::PaintSlices()
{
    while (!m_pPicture->IsFinished())
    {
        PaintSlice();
        if (!m_isPaintedAtOnce && !m_pPicture->IsFinished())
            return m_nextSlice.start();
    }
}

void DrawingView::OnSliceDue()
{
    const bool isBehind = m_pPicture->IsBehind();
    PaintSlices();
    if (!isBehind || m_pPicture->IsFinished())
        update();
}

/// A click commits the value being typed, in the direction of the click; a rejected value stays in
/// the editor. Not while a command waits for its turn: the value is then dropped with its action.
void DrawingView::OnClick(const QMouseEvent& event)
{
    setFocus(Qt::MouseFocusReason);
    const Vector3d world = ToWorld(PositionOf(event));
    if (m_input.GetActiveEditor() != nullptr && !ActionManager::IsCommandWaiting())
    {
        ActionManager::ProcessMouseMove(this, world);
        m_input.Commit();
    }
    else if (IActionManager::CurrentAction() != nullptr)
        ActionManager::ProcessClick(this, world);
    else
        OnFreeClick(world, event.modifiers());
}

}
