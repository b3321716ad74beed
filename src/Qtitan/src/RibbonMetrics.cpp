#include "RibbonMetrics.h"

#include <QFontMetrics>
#include <QWidget>

namespace Qtitan
{

namespace
{

/// Chinese captions often come from a fallback font that is higher than the widget's own: rows and
/// captions keep one height whatever language they are in.
int textHeight(const QWidget& widget)
{
    const QFontMetrics metrics = widget.fontMetrics();
    return qMax(metrics.height(), metrics.size(Qt::TextSingleLine, QStringLiteral("国")).height());
}

} // namespace

namespace RibbonMetrics
{

int rowHeight(const QWidget& widget)
{
    return textHeight(widget) + 6;
}

int contentHeight(const QWidget& widget)
{
    return RowsInColumn * rowHeight(widget) + (RowsInColumn - 1) * RowSpacing;
}

int titleHeight(const QWidget& widget)
{
    return textHeight(widget) + 2;
}

int tabHeight(const QWidget& widget)
{
    return textHeight(widget) + 12;
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
