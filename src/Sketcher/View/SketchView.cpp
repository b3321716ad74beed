#include "View/SketchView.h"

#include "Model/Grid.h"
#include "Model/Picking.h"
#include "Model/PickingTool.h"
#include "Model/SketchBounds.h"
#include "Model/SnapPoints.h"
#include "Model/Workspace.h"
#include "View/ScreenPens.h"
#include "View/ShapePainter.h"
#include "View/SnapMarker.h"

#include "Command/IAction.h"
#include "Command/IActionManager.h"
#include "HostUi/Contrast.h"
#include "HostUi/QtVersions.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>
#include <utility>

using vesk::IActionManager;
using vesk::Vector3d;

namespace
{

/// So many entities in a part of the picture: even of those that are slow to paint, dashed circles
/// for example, they take only milliseconds.
constexpr std::ptrdiff_t MostPainted = 250;

/// The position of the first entity in the picture: see PaintModel.
constexpr std::size_t FirstEntity = 2;

QColor Mix(const QColor& a, const QColor& b, double share)
{
    return QColor::fromRgbF(a.redF() + (b.redF() - a.redF()) * share,
                            a.greenF() + (b.greenF() - a.greenF()) * share,
                            a.blueF() + (b.blueF() - a.blueF()) * share);
}

}

SketchView::SketchView(Workspace& workspace, vesk::DimensionInputController& input,
                       QWidget* pParent)
    : DrawingView(1, input, pParent), m_workspace(workspace),
      m_visible(workspace.sketch, workspace.selection), m_mouse(workspace, *this)
{
    setObjectName(QStringLiteral("SketchView"));
    SetTop(FirstEntity);
    qApp->installEventFilter(this);
    connect(&workspace.sketch, &Sketch::changed, this, &SketchView::OnSketchChanged);
    connect(&workspace.selection, &Selection::changed, this, &SketchView::OnSelectionChanged);
    // Looking costs more, the larger the drawing: once for all changes before the event loop.
    m_lookAgain.setSingleShot(true);
    connect(&workspace.sketch, &Sketch::changed, &m_lookAgain, qOverload<>(&QTimer::start));
    connect(&m_lookAgain, &QTimer::timeout, this, &SketchView::TellCursor);
    connect(this, &DrawingView::cursorMoved, this, &SketchView::OnCursorMoved);
    connect(this, &DrawingView::cursorLeft, this, [this] { SetPointed(0); });
    vesk::ActionManager::AddObserver(this);
    UpdateCursor();
}

SketchView::~SketchView()
{
    vesk::ActionManager::RemoveObserver(this);
}

void SketchView::ZoomAll()
{
    if (const std::optional<ShapeBounds> all = BoundsOf(m_workspace.sketch))
        Fit(all->low, all->high);
}

void SketchView::OnActionChanged()
{
    UpdateCursor();
}

/// The ground, then what lies below the selected entities, then all entities.
///
/// Position 0 is the ground, an odd one a number of a selected entity, an even one the id of an
/// entity: what was added has a greater one, whatever is selected or visible.
std::size_t SketchView::PaintModel(QPainter& painter, const QRectF& area, std::size_t begin)
{
    // Wide enough to hide the caps and joins of clipped outlines.
    constexpr int Margin = 8;
    const QRectF visible = area.adjusted(-Margin, -Margin, Margin, Margin);
    if (begin == 0)
    {
        PaintGrid(painter);
        PaintAxes(painter);
        return 1;
    }
    if (begin % 2 == 1)
        return PaintSelection(painter, visible, begin / 2);
    return 2 *
           static_cast<std::size_t>(PaintEntities(painter, visible, static_cast<int>(begin / 2)));
}

void SketchView::PaintOverlay(QPainter& painter)
{
    if (const std::optional<Snapper::Caught>& caught = m_workspace.snapper.GetCaught())
        PaintSnapMarker(painter, caught->kind, ToPixel(caught->point), palette());
    m_mouse.Paint(painter);
}

void SketchView::OnFreeClick(const Vector3d& world, Qt::KeyboardModifiers modifiers)
{
    m_mouse.Press(world, modifiers);
}

void SketchView::OnFreeEscape()
{
    if (m_mouse.IsPressed())
        DropPress();
    else
        m_workspace.selection.Select({});
}

QCursor SketchView::GetRestingCursor() const
{
    using Click = IPickingTool::Click;
    const vesk::IAction* pAction = IActionManager::CurrentAction();
    if (pAction == nullptr)
        return m_pointed != 0 && !m_mouse.IsPressed() ? Qt::PointingHandCursor : Qt::ArrowCursor;
    const auto* pTool = dynamic_cast<const IPickingTool*>(pAction);
    switch (pTool != nullptr ? pTool->GetClick() : Click::SetsPoint)
    {
    case Click::PicksEntity:
        return Qt::PointingHandCursor;
    case Click::DoesNothing:
        return Qt::ForbiddenCursor;
    default:
        return Qt::CrossCursor;
    }
}

void SketchView::OnFreeConfirm()
{
    emit repeatRequested();
}

double SketchView::GetCursorStep() const
{
    return GridStep(GetCamera().GetWorldPerPixel());
}

void SketchView::contextMenuEvent(QContextMenuEvent* pEvent)
{
    if (IActionManager::CurrentAction() != nullptr || m_mouse.IsPressed())
    {
        DrawingView::contextMenuEvent(pEvent);
        return;
    }
    const bool isOfMouse = pEvent->reason() == QContextMenuEvent::Mouse;
    const bool isAtCursor = !isOfMouse && IsWalking();
    const QPoint place = isAtCursor ? ToPixel(GetWalked()).toPoint() : pEvent->pos();
    if (isOfMouse || isAtCursor)
        SelectBelow(place);
    emit menuRequested(isAtCursor ? mapToGlobal(place) : pEvent->globalPos());
}

/// Shift may be released in the editor of a value.
bool SketchView::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() != QEvent::KeyRelease)
        return DrawingView::eventFilter(pWatched, pEvent);
    const bool isShift = static_cast<const QKeyEvent*>(pEvent)->key() == Qt::Key_Shift;
    if (isShift && std::exchange(m_workspace.isDirectionHeld, false))
        PassCursor();
    return false;
}

Vector3d SketchView::WorldOf(const QMouseEvent& event) const
{
    const QPointF position = vesk::PositionOf(event);
    return GetCamera().ScreenToWorld(position.x(), position.y());
}

void SketchView::mouseMoveEvent(QMouseEvent* pEvent)
{
    m_workspace.isDirectionHeld = pEvent->modifiers().testFlag(Qt::ShiftModifier);
    DrawingView::mouseMoveEvent(pEvent);
    UpdateCursor();
    if (!m_mouse.IsPressed())
        return;
    // The release may have gone elsewhere, or a command may have begun in the meantime.
    if (!pEvent->buttons().testFlag(Qt::LeftButton) || IActionManager::CurrentAction() != nullptr)
    {
        DropPress();
        return;
    }
    m_mouse.MoveTo(WorldOf(*pEvent));
    update();
}

void SketchView::mousePressEvent(QMouseEvent* pEvent)
{
    m_workspace.isDirectionHeld = pEvent->modifiers().testFlag(Qt::ShiftModifier);
    DrawingView::mousePressEvent(pEvent);
}

void SketchView::mouseReleaseEvent(QMouseEvent* pEvent)
{
    DrawingView::mouseReleaseEvent(pEvent);
    if (pEvent->button() != Qt::LeftButton)
        return;
    if (IActionManager::CurrentAction() == nullptr)
        m_mouse.Release(WorldOf(*pEvent));
    DropPress();
}

/// What is drawn lies above all else: it is added to the picture. Where shapes stay, so does what
/// lies below the selected ones.
void SketchView::OnSketchChanged()
{
    m_visible.Forget();
    const unsigned revision = m_workspace.sketch.GetRevision();
    const unsigned shapes = m_workspace.sketch.GetShapeRevision();
    const bool isAddition = std::exchange(m_shownRevision, revision) == revision;
    const bool areShapesKept = std::exchange(m_shownShapes, shapes) == shapes;
    if (isAddition)
        ExtendModel();
    else if (areShapesKept)
        UpdateTop();
    else
        UpdateModel();
}

void SketchView::OnSelectionChanged()
{
    m_visible.Forget();
    UpdateModel();
}

void SketchView::OnCursorMoved(double x, double y)
{
    SetPointed(PickEntity(m_workspace.sketch, {x, y, 0.0}, this));
}

void SketchView::SetPointed(int entity)
{
    // The same entity may have other dimensions.
    m_pointed = entity;
    UpdateCursor();
    emit pointedChanged();
}

void SketchView::DropPress()
{
    m_mouse.Drop();
    update();
}

/// An entity that is not selected yet is selected, so that the menu is about it.
void SketchView::SelectBelow(const QPoint& pixel)
{
    const int picked =
        PickEntity(m_workspace.sketch, GetCamera().ScreenToWorld(pixel.x(), pixel.y()), this);
    if (picked != 0 && !m_workspace.selection.Contains(picked))
        m_workspace.selection.Select({picked});
}

void SketchView::PaintGrid(QPainter& painter) const
{
    const QColor paper = palette().color(QPalette::Base);
    const QColor ink = palette().color(QPalette::Text);
    const double step = GridStep(GetCamera().GetWorldPerPixel());
    PaintGridLines(painter, step, Mix(paper, ink, 0.06));
    PaintGridLines(painter, step * 10.0, Mix(paper, ink, 0.14));
}

/// Hairlines, filled, because stroking them takes twenty times as long.
void SketchView::PaintGridLines(QPainter& painter, double step, const QColor& color) const
{
    // Lines between two pixels all go to the second, regardless of rounding.
    constexpr double Nudge = 1e-6;
    const double scale = painter.device()->devicePixelRatioF();
    const auto startOfPixel = [scale](double place) {
        return std::floor(place * scale + Nudge) / scale;
    };
    const Vector3d topLeft = GetCamera().ScreenToWorld(0, 0);
    const Vector3d bottomRight = GetCamera().ScreenToWorld(width(), height());
    // So far away a line and the next one have the same number.
    constexpr double GreatestNumber = 1e15;
    if (topLeft.cwiseAbs().cwiseMax(bottomRight.cwiseAbs()).maxCoeff() > GreatestNumber * step)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (double i = std::ceil(topLeft.x() / step); i * step <= bottomRight.x(); ++i)
    {
        const double x = startOfPixel(ToPixel({i * step, 0.0, 0.0}).x());
        painter.fillRect(QRectF(x, 0.0, 1.0 / scale, height()), color);
    }
    for (double i = std::ceil(bottomRight.y() / step); i * step <= topLeft.y(); ++i)
    {
        const double y = startOfPixel(ToPixel({0.0, i * step, 0.0}).y());
        painter.fillRect(QRectF(0.0, y, width(), 1.0 / scale), color);
    }
    painter.restore();
}

void SketchView::PaintAxes(QPainter& painter) const
{
    const QPointF origin = ToPixel(Vector3d::Zero());
    painter.setPen(QPen(QColor(0xd0, 0x6a, 0x62, 150), 1.0));
    painter.drawLine(QPointF(0, origin.y()), QPointF(width(), origin.y()));
    painter.setPen(QPen(QColor(0x5f, 0xa8, 0x6a, 150), 1.0));
    painter.drawLine(QPointF(origin.x(), 0), QPointF(origin.x(), height()));
}

Area SketchView::ToWorld(const QRectF& pixels) const
{
    const vesk::ModelView& camera = GetCamera();
    return Area::Between(camera.ScreenToWorld(pixels.left(), pixels.top()),
                         camera.ScreenToWorld(pixels.right(), pixels.bottom()));
}

/// Paints some of the entities, from an id on, and returns the id after them.
int SketchView::PaintEntities(QPainter& painter, const QRectF& visible, int first)
{
    ScreenPens pens(m_workspace.sketch, palette());
    const auto begin = m_visible.From(first, ToWorld(visible));
    const auto end = begin + std::min(m_visible.End() - begin, MostPainted);
    for (auto entity = begin; entity != end; ++entity)
    {
        if (const QPen* pPen = pens.Find((*entity)->pen))
            PaintShape(painter, *pPen, (*entity)->shape, GetCamera(), visible);
    }
    return begin == end ? first : (*std::prev(end))->id + 1;
}

/// The same for what lies below selected entities. Returns the position after them.
std::size_t SketchView::PaintSelection(QPainter& painter, const QRectF& visible, std::size_t begin)
{
    const std::vector<const Entity*>& selected = m_visible.GetSelected(ToWorld(visible));
    const std::size_t end = std::min<std::size_t>(begin + MostPainted, selected.size());
    for (std::size_t i = begin; i < end; ++i)
        PaintSelected(painter, visible, *selected[i]);
    return end < selected.size() ? 2 * end + 1 : FirstEntity;
}

/// Paints a band below the outline, and grips at its ends and centre.
void SketchView::PaintSelected(QPainter& painter, const QRectF& visible, const Entity& entity) const
{
    constexpr double BandWidth = 7.0;
    constexpr double GripSize = 7.0;
    const QColor highlight = vesk::Legible(palette().color(QPalette::Highlight), palette());
    QColor band = highlight;
    band.setAlpha(110);
    PaintShape(painter, QPen(band, BandWidth, Qt::SolidLine, Qt::RoundCap), entity.shape,
               GetCamera(), visible);
    std::vector<Vector3d> grips = EndsOf(entity.shape);
    if (const std::optional<Vector3d> centre = CentreOf(entity.shape))
        grips.push_back(*centre);
    for (const Vector3d& grip : grips)
    {
        QRectF box(0.0, 0.0, GripSize, GripSize);
        box.moveCenter(ToPixel(grip));
        painter.fillRect(box, highlight);
    }
}
