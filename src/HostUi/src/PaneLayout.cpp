#include "HostUi/PaneLayout.h"

#include "HostUi/QtText.h"

#include <QDataStream>
#include <QDockWidget>
#include <QEvent>
#include <QGuiApplication>
#include <QLayout>
#include <QMainWindow>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <map>
#include <utility>

namespace vesk
{
namespace
{

/// Of saveState's format here.
constexpr int StateVersion = 1;

/// Of the stream that holds the toolkit's state and the places of floating panes.
constexpr QDataStream::Version StreamVersion = QDataStream::Qt_5_12;

/// How much of a floating pane has to be on a screen, in pixels.
constexpr QSize LeastInReach(64, 32);

Qt::DockWidgetArea ToQt(DockArea area)
{
    return static_cast<Qt::DockWidgetArea>(area);
}

/// The direction in which an area is as wide as its panes.
Qt::Orientation AcrossOf(DockArea area)
{
    return area == DockArea::Left || area == DockArea::Right ? Qt::Horizontal : Qt::Vertical;
}

bool IsInReach(const QRect& pane)
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&pane](const QScreen* pScreen) {
        const QRect seen = pane & pScreen->availableGeometry();
        return seen.width() >= LeastInReach.width() && seen.height() >= LeastInReach.height();
    });
}

}

PaneLayout::PaneLayout(QMainWindow& window, IDockManager& docks, std::vector<PanePlace> places)
    : m_window(window), m_docks(docks), m_places(std::move(places))
{
    Prepare();
    connect(qApp, &QGuiApplication::screenRemoved, this, &PaneLayout::BringFloatingIntoReach);
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
    m_beforeHiding.clear();
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
        if (!pane.pDock->IsFloating() || IsInReach(pane.pWidget->geometry()))
            continue;
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        const QSize size = pane.pWidget->size().boundedTo(screen.size());
        pane.pWidget->resize(size);
        QRect place(QPoint(), size);
        place.moveCenter(screen.center());
        pane.pDock->Move(place.x(), place.y());
    }
}

bool PaneLayout::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::ShowToParent && !m_isApplying)
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

/// Names the panes, by which the toolkit tells them apart, and listens to them. One that has left
/// the manager is nobody's any more.
void PaneLayout::Prepare()
{
    for (QDockWidget* pWidget : m_window.findChildren<QDockWidget*>())
        pWidget->setObjectName(QString());
    for (const Pane& pane : FindPanes())
    {
        pane.pWidget->setObjectName(ToQString(pane.pDock->GetName()));
        pane.pWidget->installEventFilter(this);
    }
}

bool PaneLayout::Apply(const QByteArray& layout)
{
    const QScopedValueRollback<bool> applying(m_isApplying, true);
    Prepare();
    QByteArray state;
    QMap<QString, QRect> places;
    QDataStream stream(layout);
    stream.setVersion(StreamVersion);
    stream >> state >> places;
    if (stream.status() != QDataStream::Ok || !m_window.restoreState(state, StateVersion))
        return false;
    PlaceLost();
    PlaceFloating(places);
    BringFloatingIntoReach();
    return true;
}

/// Puts floating panes exactly where they were: the toolkit would push those that reach beyond the
/// screen back into it.
void PaneLayout::PlaceFloating(QMap<QString, QRect> places)
{
    for (const Pane& pane : FindPanes())
    {
        const QRect place = places.take(pane.pWidget->objectName());
        if (!place.isValid() || !pane.pDock->IsFloating())
            continue;
        pane.pWidget->setGeometry(place);
        // It must not come up before the window.
        if (m_window.isVisible() || pane.pDock->IsHidden())
            continue;
        pane.pDock->Hide();
        QTimer::singleShot(0, pane.pWidget, &QWidget::show);
    }
    m_unknownPlaces = places;
}

/// Gives the panes of an area the same share of it.
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

/// Puts panes to their factory places that the layout has left nowhere.
void PaneLayout::PlaceLost()
{
    for (const PanePlace& place : m_places)
    {
        QDockWidget* pWidget = FindWidget(place.name);
        if (pWidget == nullptr || m_window.dockWidgetArea(pWidget) != Qt::NoDockWidgetArea)
            continue;
        pWidget->setFloating(false);
        m_window.addDockWidget(ToQt(place.area), pWidget);
    }
}

}
