#include "HostUi/PaneLayout.h"

#include "HostUi/QtText.h"
#include "Panes/PanePosition.h"
#include "Panes/PaneReach.h"

#include <QCursor>
#include <QDataStream>
#include <QDockWidget>
#include <QEvent>
#include <QGuiApplication>
#include <QIODevice>
#include <QLayout>
#include <QMainWindow>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <map>
#include <utility>

namespace vesk
{
namespace
{

/// The version of our saveState format.
constexpr int StateVersion = 1;

/// The version of the stream that holds the toolkit's state and the positions of floating panes.
constexpr QDataStream::Version StreamVersion = QDataStream::Qt_5_12;

/// The least usable size of a pane's content, in pixels; it gets no less however small the window.
constexpr QSize LeastUsable(160, 60);

/// The greatest size of a floating pane that nobody has resized yet, in pixels.
constexpr QSize GreatestAtFirst(480, 360);

Qt::DockWidgetArea ToQt(DockArea area)
{
    return static_cast<Qt::DockWidgetArea>(area);
}

/// The direction in which an area's extent is that of its panes.
Qt::Orientation AcrossOf(DockArea area)
{
    return area == DockArea::Left || area == DockArea::Right ? Qt::Horizontal : Qt::Vertical;
}

/// The minimum extent of a content: its own, if one was set, else the usable one.
int LeastExtent(int own, int hint, int usable)
{
    if (own != 0 && own != usable)
        return own;
    return hint < usable ? usable : 0;
}

/// Makes the toolkit leave the pane a usable size. The content may need more, and its needs may
/// change.
void KeepUsable(const QDockWidget& pane)
{
    QWidget* pContent = pane.widget();
    if (pContent == nullptr)
        return;
    const QSize own = pContent->minimumSize();
    const QSize hint = pContent->minimumSizeHint();
    pContent->setMinimumSize(LeastExtent(own.width(), hint.width(), LeastUsable.width()),
                             LeastExtent(own.height(), hint.height(), LeastUsable.height()));
}

/// True if a state of the toolkit says something about a pane: it holds the pane's name as a stream
/// writes it.
bool Names(const QByteArray& state, const QDockWidget& pane)
{
    QByteArray name;
    QDataStream stream(&name, QIODevice::WriteOnly);
    stream << pane.objectName();
    return state.contains(name);
}

/// Qt bypasses the window manager while it drags a pane.
bool IsDragged(const QDockWidget& pane)
{
    return pane.windowFlags().testFlag(Qt::X11BypassWindowManagerHint);
}

}

PaneLayout::PaneLayout(QMainWindow& window, IDockManager& docks, std::vector<PanePlace> places)
    : m_window(window), m_docks(docks), m_places(std::move(places))
{
    Prepare();
    // One change emits several signals; only after the last is every screen in position.
    m_reachCheck.setSingleShot(true);
    connect(&m_reachCheck, &QTimer::timeout, this, &PaneLayout::BringFloatingIntoReach);
    connect(qApp, &QGuiApplication::screenAdded, this, &PaneLayout::WatchScreen);
    connect(qApp, &QGuiApplication::screenRemoved, this, [this] { m_reachCheck.start(0); });
    for (QScreen* pScreen : QGuiApplication::screens())
        WatchScreen(pScreen);
}

PaneLayout::~PaneLayout() = default;

QByteArray PaneLayout::Save()
{
    Prepare();
    if (IsAllHidden())
        return m_beforeHiding;
    QMap<QString, QRect> places = m_unknownPlaces;
    for (const Pane& pane : FindPanes())
    {
        if (pane.pDock->IsFloating())
            places[pane.pWidget->objectName()] = pane.pWidget->geometry();
    }
    QByteArray layout;
    QDataStream stream(&layout, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    stream << m_window.saveState(StateVersion) << places;
    return layout;
}

bool PaneLayout::Restore(const QByteArray& layout)
{
    m_beforeHiding.clear();
    const bool isUsable = Apply(layout);
    if (!isUsable)
        RestoreDefault();
    return isUsable;
}

void PaneLayout::RestoreDefault()
{
    Prepare();
    std::map<DockArea, QList<QDockWidget*>> areas;
    for (const PanePlace& place : m_places)
    {
        QDockWidget* pWidget = FindWidget(place.name);
        if (pWidget == nullptr)
            continue;
        pWidget->setFloating(false);
        m_window.addDockWidget(ToQt(place.area), pWidget);
        pWidget->show();
        if (QDockWidget* pFront = FindWidget(place.tabWith))
            m_window.tabifyDockWidget(pFront, pWidget);
        else
            areas[place.area].append(pWidget);
    }
    m_window.layout()->activate();
    for (const PanePlace& place : m_places)
    {
        QDockWidget* pWidget = FindWidget(place.name);
        if (pWidget == nullptr || !place.tabWith.empty())
            continue;
        pWidget->raise();
        m_window.resizeDocks({pWidget}, {place.extent}, AcrossOf(place.area));
    }
    for (const auto& [area, panes] : areas)
        ShareOut(area, panes);
}

void PaneLayout::ToggleAllHidden()
{
    if (IsAllHidden())
    {
        Apply(std::exchange(m_beforeHiding, QByteArray()));
        return;
    }
    const QByteArray before = Save();
    for (const Pane& pane : FindPanes())
        pane.pDock->Hide();
    m_beforeHiding = before;
}

void PaneLayout::BringFloatingIntoReach()
{
    for (const Pane& pane : FindPanes())
    {
        if (!pane.pDock->IsFloating() || IsInReach(*pane.pWidget))
            continue;
        const QRect place = PlaceInReach(*pane.pWidget);
        const QSize frame = pane.pWidget->frameGeometry().size() - pane.pWidget->size();
        pane.pWidget->resize(pane.pWidget->size().boundedTo(place.size() - frame));
        pane.pDock->Move(place.x(), place.y());
    }
}

bool PaneLayout::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::MouseButtonRelease && pWatched == m_pDragged)
        QTimer::singleShot(0, this, &PaneLayout::EndDrag);
    if (pEvent->type() == QEvent::Resize)
        NoteSize(static_cast<QDockWidget&>(*pWatched));
    if (pEvent->type() == QEvent::LayoutRequest)
        KeepUsable(static_cast<QDockWidget&>(*pWatched));
    if (pEvent->type() == QEvent::ShowToParent)
        m_beforeHiding.clear();
    if (pEvent->type() == QEvent::ShowToParent || pEvent->type() == QEvent::HideToParent)
        emit visibilityChanged();
    return QObject::eventFilter(pWatched, pEvent);
}

/// The panes that the manager knows.
std::vector<PaneLayout::Pane> PaneLayout::FindPanes() const
{
    std::vector<Pane> panes;
    for (QDockWidget* pWidget : m_window.findChildren<QDockWidget*>())
    {
        auto* pDock = dynamic_cast<IDock*>(pWidget);
        if (pDock != nullptr && m_docks.GetDock(pDock->GetName()) == pDock)
            panes.push_back({pWidget, pDock});
    }
    return panes;
}

QDockWidget* PaneLayout::FindWidget(const std::wstring& name) const
{
    return dynamic_cast<QDockWidget*>(m_docks.GetDock(name));
}

/// Sets the panes' object names, by which the toolkit tells them apart, and listens to them. A pane
/// that has left the manager loses both; panes that never were the manager's keep their names.
void PaneLayout::Prepare()
{
    const std::vector<Pane> panes = FindPanes();
    for (const QPointer<QDockWidget>& pWidget : std::exchange(m_named, {}))
    {
        const auto isIt = [&pWidget](const Pane& pane) { return pane.pWidget == pWidget; };
        if (pWidget == nullptr || std::any_of(panes.begin(), panes.end(), isIt))
            continue;
        pWidget->setObjectName(QString());
        pWidget->removeEventFilter(this);
        pWidget->disconnect(this);
    }
    for (const Pane& pane : panes)
    {
        pane.pWidget->setObjectName(ToQString(pane.pDock->GetName()));
        pane.pWidget->installEventFilter(this);
        connect(pane.pWidget, &QDockWidget::topLevelChanged, this, &PaneLayout::OnFloated,
                Qt::UniqueConnection);
        PanePosition::Watch(*pane.pWidget);
        KeepUsable(*pane.pWidget);
        m_named.emplace_back(pane.pWidget);
    }
}

void PaneLayout::WatchScreen(QScreen* pScreen)
{
    const auto check = [this] { m_reachCheck.start(0); };
    connect(pScreen, &QScreen::geometryChanged, this, check);
    connect(pScreen, &QScreen::availableGeometryChanged, this, check);
    check();
}

/// A pane that leaves its area still has the size that it had there, as wide or as high as the
/// window.
void PaneLayout::OnFloated(bool isFloating)
{
    auto& pane = static_cast<QDockWidget&>(*sender());
    m_floating.remove(pane.objectName());
    if (!isFloating)
        return;
    // While dragged, it is held by a point of its title that must stay under the cursor.
    if (IsDragged(pane))
        m_pDragged = &pane;
    else
        Float(pane);
}

/// Gives a pane that has left its area the size at which it last floated; the first time, one that
/// does not span the window.
void PaneLayout::Float(QDockWidget& pane)
{
    const QSize first = pane.size().boundedTo(GreatestAtFirst).expandedTo(pane.minimumSizeHint());
    pane.resize(m_floatingSizes.value(pane.objectName(), first));
    m_floating.insert(pane.objectName());
    NoteSize(pane);
}

/// Gives a pane that the user has dragged out of its area its floating size, and keeps it under the
/// cursor.
void PaneLayout::EndDrag()
{
    QDockWidget* pPane = m_pDragged;
    m_pDragged.clear();
    if (pPane == nullptr || !pPane->isFloating())
        return;
    const int held = QCursor::pos().x() - pPane->x();
    const int widthBefore = std::max(1, pPane->width());
    Float(*pPane);
    pPane->move(pPane->x() + held - held * pPane->width() / widthBefore, pPane->y());
}

/// Remembers the size of a floating pane.
void PaneLayout::NoteSize(const QDockWidget& pane)
{
    if (m_floating.contains(pane.objectName()) && pane.isFloating())
        m_floatingSizes[pane.objectName()] = pane.size();
}

bool PaneLayout::Apply(const QByteArray& layout)
{
    Prepare();
    QByteArray state;
    QMap<QString, QRect> places;
    QDataStream stream(layout);
    stream.setVersion(StreamVersion);
    stream >> state >> places;
    if (stream.status() != QDataStream::Ok)
        return false;
    // The toolkit would leave them where they are, beside those that it moves.
    for (const PanePlace& place : m_places)
    {
        QDockWidget* pWidget = FindWidget(place.name);
        if (pWidget != nullptr && !Names(state, *pWidget))
            m_window.removeDockWidget(pWidget);
    }
    if (!m_window.restoreState(state, StateVersion))
        return false;
    PlaceLost();
    PlaceFloating(places);
    BringFloatingIntoReach();
    return true;
}

/// Restores the exact positions of floating panes: the toolkit pushes those that extend beyond the
/// screen back into it.
void PaneLayout::PlaceFloating(QMap<QString, QRect> places)
{
    for (const Pane& pane : FindPanes())
    {
        const QRect place = places.take(pane.pWidget->objectName());
        if (!place.isValid() || !pane.pDock->IsFloating())
            continue;
        pane.pWidget->setGeometry(place);
        // It must not appear before the window.
        if (m_window.isVisible() || pane.pDock->IsHidden())
            continue;
        pane.pDock->Hide();
        QTimer::singleShot(0, pane.pWidget, &QWidget::show);
    }
    m_unknownPlaces = places;
}

/// Gives the panes of an area equal shares of it.
void PaneLayout::ShareOut(DockArea area, const QList<QDockWidget*>& panes)
{
    const bool isSide = AcrossOf(area) == Qt::Horizontal;
    const int room = isSide ? m_window.height() : m_window.width();
    const int share = room / static_cast<int>(panes.size());
    QList<int> sizes;
    for (int i = 0; i < panes.size(); ++i)
        sizes.append(share);
    m_window.resizeDocks(panes, sizes, isSide ? Qt::Vertical : Qt::Horizontal);
}

/// Puts panes that the layout has left without an area into their default positions.
void PaneLayout::PlaceLost()
{
    for (const PanePlace& place : m_places)
    {
        QDockWidget* pWidget = FindWidget(place.name);
        if (pWidget == nullptr || m_window.dockWidgetArea(pWidget) != Qt::NoDockWidgetArea)
            continue;
        pWidget->setFloating(false);
        pWidget->show();
        m_window.addDockWidget(ToQt(place.area), pWidget);
        PutBehind(FindWidget(place.tabWith), *pWidget);
    }
}

/// Tabs a pane with another, behind it, if that one is docked where the pane goes by default.
void PaneLayout::PutBehind(QDockWidget* pFront, QDockWidget& pane)
{
    if (pFront == nullptr || pFront->isFloating() || pFront->isHidden() ||
        m_window.dockWidgetArea(pFront) != m_window.dockWidgetArea(&pane))
        return;
    m_window.tabifyDockWidget(pFront, &pane);
    pFront->raise();
}

}
