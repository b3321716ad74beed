#include "RibbonMetrics.h"

#include <QFontMetrics>
#include <QWidget>

namespace Qtitan
{

namespace RibbonMetrics
{

int rowHeight(const QWidget& widget)
{
    return widget.fontMetrics().height() + 8;
}

int contentHeight(const QWidget& widget)
{
    return RowsInColumn * rowHeight(widget) + (RowsInColumn - 1) * RowSpacing;
}

int titleHeight(const QWidget& widget)
{
    return widget.fontMetrics().height() + 4;
}

int tabHeight(const QWidget& widget)
{
    return widget.fontMetrics().height() + 14;
}

} // namespace RibbonMetrics

bool takesRoom(const QWidget* pWidget, const QWidget* pPlace)
{
    if (pWidget == nullptr || pWidget->parentWidget() != pPlace)
        return false;
    // A child that was never shown counts as hidden to Qt until its first show.
    return !pWidget->isHidden() || !pWidget->testAttribute(Qt::WA_WState_ExplicitShowHide);
}

} // namespace Qtitan
