#include "RibbonButtonPainter.h"

#include "RibbonButtonLayout.h"
#include "RibbonColors.h"

#include <QCursor>
#include <QMenu>
#include <QPainter>
#include <QToolButton>

namespace Qtitan
{

namespace
{

constexpr qreal CornerRadius = 4;

bool isMenuOpen(const QToolButton& button)
{
    return button.menu() != nullptr && button.menu()->isVisible();
}

bool isHovered(const QToolButton& button)
{
    return button.isEnabled() && button.underMouse();
}

QColor fillOf(const QToolButton& button, const RibbonColors& colors)
{
    if (button.isDown() || (isHovered(button) && button.isChecked()))
        return colors.pressed;
    if (button.isChecked())
        return colors.checked;
    return isHovered(button) ? colors.hover : QColor(Qt::transparent);
}

/// One of the two parts of a split button: the one under the pointer stands out from the other.
/// Whether the button is checked is not shown.
QColor fillOfPart(const QToolButton& button, const RibbonColors& colors, const QRect& part,
                  bool isPressed)
{
    if (isPressed)
        return colors.pressed;
    const bool isPointedAt =
        isHovered(button) && part.contains(button.mapFromGlobal(QCursor::pos()));
    if (isPointedAt)
        return colors.checked;
    return isHovered(button) || isMenuOpen(button) ? colors.hover : QColor(Qt::transparent);
}

QColor edgeOf(const QToolButton& button, const RibbonColors& colors, bool isSplit)
{
    const bool isMarked = button.isChecked() && !isSplit;
    if (button.isDown() || isMarked || button.hasFocus() || isMenuOpen(button))
        return colors.checkedEdge;
    return isHovered(button) ? colors.checked : QColor(Qt::transparent);
}

void paintFrame(QPainter& painter, const QToolButton& button, const QColor& edge,
                const QColor& fill)
{
    painter.setPen(edge);
    painter.setBrush(fill);
    const QRectF frame = QRectF(button.rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(frame, CornerRadius, CornerRadius);
}

void paintState(QPainter& painter, const QToolButton& button, const RibbonColors& colors,
                const QRect& arrowPart)
{
    const QColor edge = edgeOf(button, colors, !arrowPart.isEmpty());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (arrowPart.isEmpty())
    {
        paintFrame(painter, button, edge, fillOf(button, colors));
        painter.restore();
        return;
    }
    const QRect mainPart = button.rect().adjusted(0, 0, -arrowPart.width(), 0);
    painter.setClipRect(mainPart);
    paintFrame(painter, button, edge, fillOfPart(button, colors, mainPart, button.isDown()));
    painter.setClipRect(arrowPart);
    paintFrame(painter, button, edge, fillOfPart(button, colors, arrowPart, isMenuOpen(button)));
    painter.fillRect(QRect(arrowPart.topLeft(), QSize(1, arrowPart.height())), edge);
    painter.restore();
}

void paintMenuArrow(QPainter& painter, const QToolButton& button, const RibbonButtonLayout& layout)
{
    QStyleOptionToolButton arrow(layout.option);
    arrow.rect = layout.arrow;
    button.style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, &button);
}

} // namespace

void paintRibbonButton(QToolButton& button, RibbonButtonForm form)
{
    const RibbonColors colors(button.palette());
    const RibbonButtonLayout layout(button, form);
    QPainter painter(&button);
    paintState(painter, button, colors, layout.menuPart);
    if (!layout.arrow.isEmpty())
        paintMenuArrow(painter, button, layout);
    for (const QStyleOptionToolButton& label : layout.labels)
        button.style()->drawControl(QStyle::CE_ToolButtonLabel, &label, &painter, &button);
}

} // namespace Qtitan
