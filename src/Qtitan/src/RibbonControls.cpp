#include "RibbonControls.h"

#include "Qtitan/RibbonBar.h"
#include "Qtitan/RibbonGroup.h"
#include "Qtitan/RibbonPage.h"
#include "RibbonTabBar.h"

#include <QAbstractButton>

#include <algorithm>
#include <limits>
#include <tuple>
#include <vector>

namespace Qtitan
{

namespace
{

/// The position of a control in its page.
struct Place
{
    QWidget* pControl;
    int column;
    int row;
    QRect rect;
};

bool isControl(const QWidget& widget)
{
    return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           (widget.focusPolicy() & Qt::TabFocus) != 0;
}

void collectControls(const QWidget& parent, QList<QWidget*>& controls)
{
    const auto children = parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* pChild : children)
    {
        if (pChild->isWindow())
            continue;
        if (isControl(*pChild))
            controls.append(pChild);
        else
            collectControls(*pChild, controls);
    }
}

QRect rectIn(const RibbonPage& page, const QWidget& widget)
{
    return QRect(widget.mapTo(const_cast<RibbonPage*>(&page), QPoint()), widget.size());
}

/// The left edge of the part of a group that holds the control; outside a group, beyond all others.
int columnOf(const RibbonPage& page, const QWidget& control)
{
    const QWidget* pPart = &control;
    while (pPart != &page && qobject_cast<const RibbonGroup*>(pPart->parentWidget()) == nullptr)
        pPart = pPart->parentWidget();
    return pPart == &page ? std::numeric_limits<int>::max() : rectIn(page, *pPart).left();
}

/// Gives controls that are side by side in a column the same row.
void assignRows(std::vector<Place>& places)
{
    std::stable_sort(places.begin(), places.end(), [](const Place& a, const Place& b) {
        return std::make_tuple(a.column, a.rect.center().y()) <
               std::make_tuple(b.column, b.rect.center().y());
    });
    const Place* pFirst = nullptr;
    for (Place& place : places)
    {
        const bool isBeside = pFirst != nullptr && place.column == pFirst->column &&
                              place.rect.center().y() <= pFirst->rect.bottom();
        if (!isBeside)
            pFirst = &place;
        place.row = pFirst->rect.top();
    }
}

/// The tabs of the ribbon that the page is in; null outside a ribbon.
QWidget* tabsOf(const RibbonPage& page)
{
    const QWidget* pBar = page.parentWidget();
    while (pBar != nullptr && qobject_cast<const RibbonBar*>(pBar) == nullptr)
        pBar = pBar->parentWidget();
    return pBar != nullptr ? pBar->findChild<RibbonTabBar*>() : nullptr;
}

} // namespace

QList<QWidget*> controlsInOrder(const RibbonPage& page)
{
    QList<QWidget*> controls;
    collectControls(page, controls);
    std::vector<Place> places;
    for (QWidget* pControl : controls)
        places.push_back({pControl, columnOf(page, *pControl), 0, rectIn(page, *pControl)});
    assignRows(places);
    std::stable_sort(places.begin(), places.end(), [](const Place& a, const Place& b) {
        return std::make_tuple(a.column, a.row, a.rect.left()) <
               std::make_tuple(b.column, b.row, b.rect.left());
    });
    controls.clear();
    for (const Place& place : places)
        controls.append(place.pControl);
    return controls;
}

void orderFocus(const RibbonPage& page)
{
    QWidget* pBefore = tabsOf(page);
    const QList<QWidget*> controls = controlsInOrder(page);
    for (QWidget* pControl : controls)
    {
        if (pControl->focusPolicy() == Qt::NoFocus)
            continue;
        if (pBefore != nullptr)
            QWidget::setTabOrder(pBefore, pControl);
        pBefore = pControl;
    }
}

} // namespace Qtitan
