#include "Panes/PaneRetreat.h"

#include <QDataStream>
#include <QDockWidget>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QSet>

#include <algorithm>
#include <utility>

namespace vesk
{
namespace
{

constexpr QDataStream::Version RetreatStreamVersion = QDataStream::Qt_5_12;

int ExtentOf(const QSize& size, Qt::Orientation orientation)
{
    return orientation == Qt::Horizontal ? size.width() : size.height();
}

/// True if a pane takes room in the window.
bool IsDocked(const QDockWidget& pane)
{
    return !pane.isHidden() && !pane.isFloating();
}

Qt::DockWidgetArea OppositeOf(Qt::DockWidgetArea area)
{
    switch (area)
    {
    case Qt::LeftDockWidgetArea:
        return Qt::RightDockWidgetArea;
    case Qt::RightDockWidgetArea:
        return Qt::LeftDockWidgetArea;
    case Qt::TopDockWidgetArea:
        return Qt::BottomDockWidgetArea;
    default:
        return Qt::TopDockWidgetArea;
    }
}

/// Behind another tab a pane has no size of its own.
bool IsInFront(const QDockWidget& pane)
{
    return !pane.visibleRegion().isEmpty();
}

/// Resizes panes at once. The toolkit counts the bar with the tabs as a part of the pane, and
/// rounds: what it has missed is added.
void ResizePanes(QMainWindow& window, const QList<QDockWidget*>& panes, const QList<int>& extents,
                 Qt::Orientation orientation)
{
    constexpr int Attempts = 3;
    const bool isAnimated = window.isAnimated();
    window.setAnimated(false);
    QList<int> requests = extents;
    for (int attempt = 0; attempt < Attempts && !panes.isEmpty(); ++attempt)
    {
        window.resizeDocks(panes, requests, orientation);
        window.layout()->activate();
        for (int i = 0; i < panes.size(); ++i)
            requests[i] =
                std::max(1, requests[i] + extents[i] - ExtentOf(panes[i]->size(), orientation));
    }
    window.setAnimated(isAnimated);
}

}

PaneRetreat::PaneRetreat(QMainWindow& window) : m_window(window)
{
    m_window.installEventFilter(this);
}

QByteArray PaneRetreat::Save() const
{
    QByteArray state;
    QDataStream stream(&state, QIODevice::WriteOnly);
    stream.setVersion(RetreatStreamVersion);
    stream << static_cast<qint32>(m_groups.size());
    for (const Group& group : m_groups)
        stream << group.names << group.fronts << group.room;
    stream << m_sizes;
    return state;
}

void PaneRetreat::Restore(const QByteArray& state)
{
    QDataStream stream(state);
    stream.setVersion(RetreatStreamVersion);
    qint32 count = 0;
    QVector<Group> groups;
    QMap<QString, QSize> sizes;
    stream >> count;
    for (qint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i)
    {
        Group group;
        stream >> group.names >> group.fronts >> group.room;
        groups.append(group);
    }
    stream >> sizes;
    const bool isUsable = stream.status() == QDataStream::Ok;
    m_groups = isUsable ? groups : QVector<Group>();
    m_sizes = isUsable ? sizes : QMap<QString, QSize>();
    m_shownLast.clear();
    m_checkedSize = QSize();
}

void PaneRetreat::OnPaneShown(const QDockWidget& pane)
{
    if (m_pauses > 0)
        return;
    m_shownLast = pane.objectName();
    for (Group& group : m_groups)
        group.names.removeAll(m_shownLast);
}

/// While panes are smaller than they are to be, only what the user does with a separator counts.
void PaneRetreat::OnPaneResized()
{
    if (m_pauses == 0 && !m_isSqueezed && m_window.size() == m_checkedSize)
        NoteSizes();
}

QMap<QString, QSize> PaneRetreat::SizesInFront() const
{
    QMap<QString, QSize> sizes;
    for (const QDockWidget* pPane : FindInFront())
        sizes[pPane->objectName()] = pPane->size();
    return sizes;
}

/// What the panes have now is what they are to have.
void PaneRetreat::NoteSizes()
{
    for (QDockWidget* pPane : FindInFront())
    {
        m_sizes[pPane->objectName()] = pPane->size();
        for (const QDockWidget* pTabbed : m_window.tabifiedDockWidgets(pPane))
            m_sizes[pTabbed->objectName()] = pPane->size();
    }
}

bool PaneRetreat::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    // The layout gets the event first.
    if (type == QEvent::Resize || type == QEvent::LayoutRequest || type == QEvent::Show)
        Check();
    // A click on a separator, or anywhere in the window, resizes nothing.
    if (type == QEvent::MouseButtonPress)
        m_pressedSizes = SizesInFront();
    if (type == QEvent::MouseButtonRelease && SizesInFront() != m_pressedSizes)
        NoteSizes();
    return QObject::eventFilter(pWatched, pEvent);
}

void PaneRetreat::Check()
{
    if (!m_window.isVisible() || m_window.isMinimized() || m_pauses > 0)
        return;
    const Pause pause(*this);
    if (Arrange())
    {
        m_window.layout()->activate();
        m_checkedSize = QSize();
    }
    if (m_window.size() != m_checkedSize)
        RestoreSizes();
    m_checkedSize = m_window.size();
    m_isSqueezed = IsSqueezed();
    if (!m_isSqueezed)
        NoteSizes();
}

/// True if a pane has given way, or is not as large as it is to be.
bool PaneRetreat::IsSqueezed() const
{
    const QList<QDockWidget*> panes = FindInFront();
    return !m_groups.isEmpty() ||
           std::any_of(panes.begin(), panes.end(), [this](QDockWidget* pPane) {
               const Qt::Orientation orientation = AcrossOf(*pPane);
               return ExtentOf(pPane->size(), orientation) <
                      ExtentOf(m_sizes.value(pPane->objectName()), orientation);
           });
}

/// Shows and hides panes as the size of the window requires. Returns true if it has done so.
bool PaneRetreat::Arrange()
{
    bool isChanged = false;
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical})
    {
        while (IsTooSmall(orientation) && GiveWay(orientation))
            isChanged = true;
    }
    while (ComeBack())
    {
        m_areSomeBack = true;
        isChanged = true;
    }
    return isChanged;
}

void PaneRetreat::RestoreSizes()
{
    const bool areSomeBack = std::exchange(m_areSomeBack, false);
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical})
    {
        RestoreAcross(orientation);
        if (areSomeBack)
            RestoreShares(orientation);
    }
}

bool PaneRetreat::IsTooSmall(Qt::Orientation orientation) const
{
    return ExtentOf(LeastSize(), orientation) > ExtentOf(m_window.size(), orientation);
}

bool PaneRetreat::GiveWay(Qt::Orientation orientation)
{
    QList<QDockWidget*> panes = FindDocked();
    std::reverse(panes.begin(), panes.end());
    std::stable_partition(panes.begin(), panes.end(), [this, orientation](QDockWidget* pPane) {
        return AcrossOf(*pPane) == orientation;
    });
    for (QDockWidget* pPane : std::as_const(panes))
    {
        const QList<QDockWidget*> group = FindGroup(*pPane, orientation);
        const bool isWanted =
            std::any_of(group.begin(), group.end(), [this](const QDockWidget* pOther) {
                return pOther->objectName() == m_shownLast;
            });
        if (isWanted || !IsInTheWay(*pPane, orientation))
            continue;
        GiveWay(group, orientation);
        return true;
    }
    return false;
}

/// Panes beside the drawing are in the way of its width. Several of them, one above the other, may
/// be in the way of the window's height, too.
bool PaneRetreat::IsInTheWay(QDockWidget& pane, Qt::Orientation orientation) const
{
    if (AcrossOf(pane) == orientation)
        return true;
    const Qt::DockWidgetArea area = m_window.dockWidgetArea(&pane);
    const int extent = StackExtent(area, orientation);
    const QWidget* pCentre = m_window.centralWidget();
    return extent >= StackExtent(OppositeOf(area), orientation) &&
           (pCentre == nullptr || extent > ExtentOf(pCentre->minimumSizeHint(), orientation));
}

/// What the panes of an area need that are one above the other, or side by side at top or bottom.
int PaneRetreat::StackExtent(Qt::DockWidgetArea area, Qt::Orientation orientation) const
{
    int extent = 0;
    QSet<QDockWidget*> counted;
    for (QDockWidget* pPane : FindDocked())
    {
        if (m_window.dockWidgetArea(pPane) != area || counted.contains(pPane))
            continue;
        extent += ExtentOf(pPane->minimumSizeHint(), orientation);
        for (QDockWidget* pTabbed : m_window.tabifiedDockWidgets(pPane))
            counted.insert(pTabbed);
    }
    return extent;
}

/// Those that give way with a pane, itself included: all of its area, or those that are tabbed with
/// it.
QList<QDockWidget*> PaneRetreat::FindGroup(QDockWidget& pane, Qt::Orientation orientation) const
{
    const QList<QDockWidget*> tabbed = m_window.tabifiedDockWidgets(&pane);
    const bool isWholeArea = AcrossOf(pane) == orientation;
    QList<QDockWidget*> group;
    for (QDockWidget* pOther : FindDocked())
    {
        const bool isOfArea = m_window.dockWidgetArea(pOther) == m_window.dockWidgetArea(&pane);
        if (pOther == &pane || tabbed.contains(pOther) || (isWholeArea && isOfArea))
            group.append(pOther);
    }
    return group;
}

void PaneRetreat::GiveWay(const QList<QDockWidget*>& panes, Qt::Orientation orientation)
{
    Group group;
    QSize least;
    for (const QDockWidget* pPane : panes)
    {
        group.names.append(pPane->objectName());
        if (IsInFront(*pPane))
            group.fronts.append(pPane->objectName());
        least = least.expandedTo(pPane->minimumSizeHint());
    }
    const QSize before = LeastSize();
    // Whoever is told of it may destroy another one.
    for (const QString& name : std::as_const(group.names))
    {
        if (QDockWidget* pPane = Find(name))
            pPane->hide();
    }
    group.room = before - LeastSize();
    // Something else may need as much. They would come back at once.
    if (orientation == Qt::Horizontal)
        group.room.setWidth(std::max(group.room.width(), least.width()));
    else
        group.room.setHeight(std::max(group.room.height(), least.height()));
    m_groups.append(group);
}

/// Shows the last group for which there is room.
bool PaneRetreat::ComeBack()
{
    const QSize shown = LeastSize();
    for (int i = static_cast<int>(m_groups.size()) - 1; i >= 0; --i)
    {
        const QSize wanted = shown + m_groups[i].room;
        if (wanted.boundedTo(m_window.size()) != wanted)
            continue;
        Show(m_groups.takeAt(i));
        return true;
    }
    return false;
}

void PaneRetreat::Show(const Group& group)
{
    for (const QString& name : group.names)
    {
        if (QDockWidget* pPane = Find(name))
            pPane->show();
    }
    for (const QString& name : group.fronts)
    {
        QDockWidget* pPane = group.names.contains(name) ? Find(name) : nullptr;
        if (pPane != nullptr)
            pPane->raise();
    }
}

/// Gives panes that had to become smaller as much of their size as the central widget can spare.
void PaneRetreat::RestoreAcross(Qt::Orientation orientation)
{
    const QWidget* pCentre = m_window.centralWidget();
    if (pCentre == nullptr)
        return;
    int spare = ExtentOf(pCentre->size() - pCentre->minimumSizeHint(), orientation);
    QList<QDockWidget*> panes;
    QList<int> extents;
    QSet<int> areas;
    for (QDockWidget* pPane : FindInFront())
    {
        const Qt::DockWidgetArea area = m_window.dockWidgetArea(pPane);
        if (AcrossOf(*pPane) != orientation || areas.contains(area))
            continue;
        areas.insert(area);
        const int now = ExtentOf(pPane->size(), orientation);
        const int wanted = ExtentOf(m_sizes.value(pPane->objectName()), orientation);
        const int gain = std::min(wanted - now, spare);
        if (gain <= 0)
            continue;
        spare -= gain;
        panes.append(pPane);
        extents.append(now + gain);
    }
    ResizePanes(m_window, panes, extents, orientation);
}

/// Gives panes that share an extent of their area what they had of it, but for a pixel.
void PaneRetreat::RestoreShares(Qt::Orientation orientation)
{
    QList<QDockWidget*> panes;
    QList<int> extents;
    for (QDockWidget* pPane : FindInFront())
    {
        const int wanted = ExtentOf(m_sizes.value(pPane->objectName()), orientation);
        if (AcrossOf(*pPane) == orientation || wanted <= 0)
            continue;
        panes.append(pPane);
        extents.append(wanted);
    }
    ResizePanes(m_window, panes, extents, orientation);
}

/// What the window needs for all that it shows.
QSize PaneRetreat::LeastSize() const
{
    return m_window.layout()->totalMinimumSize();
}

QDockWidget* PaneRetreat::Find(const QString& name) const
{
    return m_window.findChild<QDockWidget*>(name);
}

QList<QDockWidget*> PaneRetreat::FindDocked() const
{
    QList<QDockWidget*> panes;
    for (const QString& name : m_names)
    {
        QDockWidget* pPane = Find(name);
        if (pPane != nullptr && IsDocked(*pPane))
            panes.append(pPane);
    }
    return panes;
}

QList<QDockWidget*> PaneRetreat::FindInFront() const
{
    QList<QDockWidget*> panes = FindDocked();
    const auto isBehind = [](const QDockWidget* pPane) { return !IsInFront(*pPane); };
    panes.erase(std::remove_if(panes.begin(), panes.end(), isBehind), panes.end());
    return panes;
}

Qt::Orientation PaneRetreat::AcrossOf(QDockWidget& pane) const
{
    const Qt::DockWidgetArea area = m_window.dockWidgetArea(&pane);
    const bool isAtSide = area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea;
    return isAtSide ? Qt::Horizontal : Qt::Vertical;
}

}
