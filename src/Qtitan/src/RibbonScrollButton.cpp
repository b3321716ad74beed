#include "RibbonScrollButton.h"

#include "RibbonColors.h"

#include <QPainter>
#include <QStyleOption>

namespace Qtitan
{

namespace
{

constexpr int ScrollArrowSize = 8;

QColor fillOfScrollButton(const QToolButton& button, const RibbonColors& colors)
{
    if (button.isDown())
        return colors.pressed;
    return button.underMouse() || button.hasFocus() ? colors.hover : colors.page;
}

} // namespace

RibbonScrollButton::RibbonScrollButton(Qt::ArrowType type, const QString& text, QWidget* pParent)
    : QToolButton(pParent)
{
    setArrowType(type);
    setAutoRaise(true);
    setAutoRepeat(true);
    setFocusPolicy(Qt::TabFocus);
    setToolTip(text);
    setAccessibleName(text);
    hide();
}

void RibbonScrollButton::paintEvent(QPaintEvent*)
{
    const RibbonColors colors(palette());
    const bool isLeft = arrowType() == Qt::LeftArrow;
    QPainter painter(this);
    painter.fillRect(rect(), fillOfScrollButton(*this, colors));
    painter.fillRect(isLeft ? width() - 1 : 0, 0, 1, height(), colors.line);

    QStyleOption option;
    option.initFrom(this);
    option.rect = QRect(0, 0, ScrollArrowSize, ScrollArrowSize);
    option.rect.moveCenter(rect().center());
    const auto arrow = isLeft ? QStyle::PE_IndicatorArrowLeft : QStyle::PE_IndicatorArrowRight;
    style()->drawPrimitive(arrow, &option, &painter, this);
}

} // namespace Qtitan
