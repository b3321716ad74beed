#include "Application/FocusAreas.h"

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QShortcut>

#include <algorithm>

namespace vesk
{
namespace
{

bool Contains(const QWidget& area, const QWidget* pWidget)
{
    return pWidget == &area || area.isAncestorOf(pWidget);
}

/// Whether a widget can get the keyboard by Tab now.
bool TakesKeys(const QWidget& widget)
{
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

/// A pane behind a tab of another is not seen.
bool IsSeen(const QWidget& area)
{
    return area.isVisible() && !area.visibleRegion().isEmpty();
}

}

FocusAreas::FocusAreas(QMainWindow& window) : QObject(&window), m_window(window)
{
    AddKey(QStringLiteral("F6"), 1);
    AddKey(QStringLiteral("Shift+F6"), -1);
    connect(qApp, &QApplication::focusChanged, this, &FocusAreas::OnFocusChanged);
}

void FocusAreas::AddKey(const QString& key, int step)
{
    auto* pShortcut = new QShortcut(QKeySequence(key), &m_window);
    pShortcut->setContext(Qt::ApplicationShortcut);
    connect(pShortcut, &QShortcut::activated, this, [this, step] { Go(step); });
}

void FocusAreas::Go(int step)
{
    const QList<QWidget*> areas = FindAreas();
    const auto current = std::find_if(areas.begin(), areas.end(), [](const QWidget* pArea) {
        return Contains(*pArea, QApplication::focusWidget());
    });
    const int count = static_cast<int>(areas.size());
    const int from = current != areas.end() ? static_cast<int>(current - areas.begin()) : 0;
    for (int i = 1; i < count; ++i)
    {
        QWidget* pTarget = FindTarget(*areas[(from + step * i + count * i) % count]);
        if (pTarget == nullptr)
            continue;
        pTarget->window()->activateWindow();
        pTarget->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return;
    }
}

QList<QWidget*> FocusAreas::FindAreas() const
{
    QList<QWidget*> panes;
    for (QDockWidget* pPane : m_window.findChildren<QDockWidget*>())
    {
        if (IsSeen(*pPane))
            panes << pPane;
    }
    std::sort(panes.begin(), panes.end(), [](const QWidget* pLeft, const QWidget* pRight) {
        const QPoint left = pLeft->mapToGlobal(QPoint());
        const QPoint right = pRight->mapToGlobal(QPoint());
        return std::make_pair(left.x(), left.y()) < std::make_pair(right.x(), right.y());
    });
    QList<QWidget*> areas{m_window.centralWidget()};
    areas += panes;
    areas << m_window.menuWidget();
    areas.removeAll(nullptr);
    return areas;
}

/// Null if nothing in the area takes keys.
QWidget* FocusAreas::FindTarget(QWidget& area) const
{
    if (TakesKeys(area))
        return &area;
    for (const QPointer<QWidget>& pFormer : m_former)
    {
        if (pFormer != nullptr && area.isAncestorOf(pFormer) && TakesKeys(*pFormer))
            return pFormer;
    }
    // In the order of Tab.
    for (QWidget* pNext = area.nextInFocusChain(); pNext != &area;
         pNext = pNext->nextInFocusChain())
    {
        if (area.isAncestorOf(pNext) && TakesKeys(*pNext))
            return pNext;
    }
    return nullptr;
}

void FocusAreas::OnFocusChanged(QWidget*, QWidget* pNow)
{
    constexpr int Most = 20;
    if (pNow == nullptr)
        return;
    m_former.removeAll(QPointer<QWidget>());
    m_former.removeAll(QPointer<QWidget>(pNow));
    m_former.prepend(pNow);
    while (m_former.size() > Most)
        m_former.removeLast();
}

}
