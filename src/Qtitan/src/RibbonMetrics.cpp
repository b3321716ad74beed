#include "RibbonMetrics.h"

#include <QFontMetrics>
#include <QWidget>

namespace Qtitan
{

namespace
{

/// Chinese captions often use a fallback font that is higher than the widget's own; this keeps rows
/// and captions at one height in every language.
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
    // Qt reports a child as hidden until it is first shown.
    return !pWidget->isHidden() || !pWidget->testAttribute(Qt::WA_WState_ExplicitShowHide);
}

} // namespace Qtitan
