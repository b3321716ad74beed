#include "RibbonButtonPainter.h"

#include "RibbonColors.h"

#include <QCursor>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionToolButton>
#include <QToolButton>

namespace Qtitan
{

namespace
{

constexpr qreal CornerRadius = 4;
constexpr int ArrowSize = 7;

QStyle::State stateOf(const QToolButton& button)
{
    QStyle::State state = QStyle::State_None;
    state.setFlag(QStyle::State_Enabled, button.isEnabled());
    state.setFlag(QStyle::State_Active, button.isActiveWindow());
    state.setFlag(QStyle::State_AutoRaise, button.autoRaise());
    state.setFlag(QStyle::State_On, button.isChecked());
    state.setFlag(QStyle::State_MouseOver, button.isEnabled() && button.underMouse());
    return state;
}

QStyleOptionToolButton optionOf(const QToolButton& button)
{
    QStyleOptionToolButton option;
    option.initFrom(&button);
    option.state = stateOf(button);
    option.subControls = QStyle::SC_ToolButton;
    option.icon = button.icon();
    option.iconSize = button.iconSize();
    option.text = button.text();
    option.arrowType = button.arrowType();
    option.font = button.font();
    option.toolButtonStyle = button.toolButtonStyle();
    if (option.toolButtonStyle == Qt::ToolButtonFollowStyle)
    {
        const int style = button.style()->styleHint(QStyle::SH_ToolButtonStyle, &option, &button);
        option.toolButtonStyle = static_cast<Qt::ToolButtonStyle>(style);
    }
    if (button.arrowType() != Qt::NoArrow)
        option.features |= QStyleOptionToolButton::Arrow;
    const bool hasMenu = button.menu() != nullptr;
    if (hasMenu || button.popupMode() == QToolButton::MenuButtonPopup)
        option.features |= QStyleOptionToolButton::HasMenu;
    if (button.popupMode() == QToolButton::MenuButtonPopup)
        option.features |= QStyleOptionToolButton::MenuButtonPopup;
    return option;
}

/// The part that opens the menu; empty where the whole button does, or nothing.
QRect menuPart(const QToolButton& button, const QStyleOptionToolButton& option)
{
    if (!(option.features & QStyleOptionToolButton::MenuButtonPopup))
        return QRect();
    return button.style()->subControlRect(QStyle::CC_ToolButton, &option, QStyle::SC_ToolButtonMenu,
                                          &button);
}

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
QColor fillOfPart(const QToolButton& button, const RibbonColors& colors, const QRect& part,
                  bool isPressed)
{
    if (isPressed)
        return colors.pressed;
    const bool isPointedAt =
        isHovered(button) && part.contains(button.mapFromGlobal(QCursor::pos()));
    if (button.isChecked())
        return isPointedAt ? colors.pressed : colors.checked;
    if (isPointedAt)
        return colors.checked;
    return isHovered(button) || isMenuOpen(button) ? colors.hover : QColor(Qt::transparent);
}

QColor edgeOf(const QToolButton& button, const RibbonColors& colors)
{
    if (button.isDown() || button.isChecked() || button.hasFocus() || isMenuOpen(button))
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
    const QColor edge = edgeOf(button, colors);
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

/// The label without the room that a caption under its icon would leave between the two.
QRect labelRect(const QToolButton& button, const QStyleOptionToolButton& option, const QRect& room)
{
    if (option.toolButtonStyle != Qt::ToolButtonTextUnderIcon || option.icon.isNull())
        return room;
    const QFontMetrics metrics = button.fontMetrics();
    const int textHeight = metrics.size(Qt::TextShowMnemonic, option.text).height();
    const int slack = room.height() - option.iconSize.height() - textHeight - 6;
    return slack > 0 ? room.adjusted(0, slack / 2, 0, slack / 2 - slack) : room;
}

void paintMenuArrow(QPainter& painter, const QToolButton& button,
                    const QStyleOptionToolButton& option, const QRect& arrowPart)
{
    QStyleOptionToolButton arrow(option);
    arrow.rect = QRect(0, 0, ArrowSize, ArrowSize);
    if (arrowPart.isEmpty())
        arrow.rect.moveBottomRight(button.rect().bottomRight() - QPoint(3, 3));
    else
        arrow.rect.moveCenter(arrowPart.center());
    button.style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, &button);
}

} // namespace

void paintRibbonButton(QToolButton& button)
{
    const RibbonColors colors(button.palette());
    QPainter painter(&button);
    const QStyleOptionToolButton option = optionOf(button);
    const QRect arrowPart = menuPart(button, option);
    paintState(painter, button, colors, arrowPart);
    if (option.features & QStyleOptionToolButton::HasMenu)
        paintMenuArrow(painter, button, option, arrowPart);

    const QRect room = button.rect().adjusted(0, 0, -arrowPart.width(), 0);
    QStyleOptionToolButton label(option);
    label.rect = labelRect(button, option, room);
    button.style()->drawControl(QStyle::CE_ToolButtonLabel, &label, &painter, &button);
}

} // namespace Qtitan
