#include "RibbonTabBar.h"

#include "Caption.h"
#include "RibbonColors.h"
#include "RibbonMetrics.h"

#include <QPainter>
#include <QStyleOptionTab>

namespace Qtitan
{

namespace
{

constexpr int TextMargin = 14;
constexpr int AccentHeight = 2;

} // namespace

RibbonTabBar::RibbonTabBar(QWidget* pParent) : QTabBar(pParent)
{
    setFocusPolicy(Qt::TabFocus);
    setDrawBase(false);
    setExpanding(false);
    setDocumentMode(true);
    setElideMode(Qt::ElideNone);
    setUsesScrollButtons(true);
    setAttribute(Qt::WA_Hover);
}

void RibbonTabBar::setJoinedToPage(bool isJoined)
{
    m_isJoinedToPage = isJoined;
    update();
}

QSize RibbonTabBar::tabSizeHint(int index) const
{
    const int textWidth = fontMetrics().horizontalAdvance(plainCaption(tabText(index)));
    return QSize(textWidth + 2 * TextMargin, RibbonMetrics::tabHeight(*this));
}

QSize RibbonTabBar::minimumTabSizeHint(int index) const
{
    return tabSizeHint(index);
}

void RibbonTabBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (int i = 0; i < count(); ++i)
        paintTab(painter, i);
}

// While the bar is hidden, Qt 6 does not tell its layout that it needs another size.
void RibbonTabBar::tabInserted(int)
{
    updateGeometry();
}

void RibbonTabBar::tabRemoved(int)
{
    updateGeometry();
}

void RibbonTabBar::paintTab(QPainter& painter, int index) const
{
    const RibbonColors colors(palette());
    const QRect tab = tabRect(index);
    const bool isCurrent = index == currentIndex();
    QStyleOptionTab option;
    initStyleOption(&option, index);
    const bool isHovered = option.state.testFlag(QStyle::State_MouseOver);
    if (isCurrent && m_isJoinedToPage)
        painter.fillRect(tab, colors.page);
    else if (isHovered)
        painter.fillRect(tab, colors.hover);
    if (isCurrent)
        painter.fillRect(tab.left(), tab.top(), tab.width(), AccentHeight, colors.accent);

    painter.setPen(isCurrent || isHovered ? colors.text : colors.quietText);
    painter.drawText(tab, Qt::AlignCenter | Qt::TextSingleLine, plainCaption(tabText(index)));
    if (!isCurrent || !hasFocus())
        return;
    painter.setPen(colors.checkedEdge);
    painter.drawRect(tab.adjusted(4, 4, -5, -5));
}

} // namespace Qtitan
