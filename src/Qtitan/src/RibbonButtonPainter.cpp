#include "RibbonButtonPainter.h"

#include "RibbonColors.h"

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

void paintState(QPainter& painter, const QToolButton& button, const RibbonColors& colors)
{
    const bool isHovered = button.isEnabled() && button.underMouse();
    QColor fill = Qt::transparent;
    QColor edge = Qt::transparent;
    if (button.isDown() || (isHovered && button.isChecked()))
        fill = colors.pressed;
    else if (button.isChecked())
        fill = colors.checked;
    else if (isHovered)
        fill = colors.hover;
    if (button.isDown() || button.isChecked() || button.hasFocus())
        edge = colors.checkedEdge;
    else if (isHovered)
        edge = colors.checked;

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(edge);
    painter.setBrush(fill);
    const QRectF frame = QRectF(button.rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(frame, CornerRadius, CornerRadius);
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
                    const QStyleOptionToolButton& option, const RibbonColors& colors)
{
    QRect corner(0, 0, ArrowSize, ArrowSize);
    corner.moveBottomRight(button.rect().bottomRight() - QPoint(3, 3));
    if (option.features & QStyleOptionToolButton::MenuButtonPopup)
    {
        const QRect part = button.style()->subControlRect(QStyle::CC_ToolButton, &option,
                                                          QStyle::SC_ToolButtonMenu, &button);
        corner.moveCenter(part.center());
        painter.setPen(colors.line);
        if (option.state & QStyle::State_MouseOver)
            painter.drawLine(part.left(), part.top() + 5, part.left(), part.bottom() - 5);
    }
    QStyleOptionToolButton arrow(option);
    arrow.rect = corner;
    button.style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, &button);
}

} // namespace

void paintRibbonButton(QToolButton& button)
{
    const RibbonColors colors(button.palette());
    QPainter painter(&button);
    paintState(painter, button, colors);

    const QStyleOptionToolButton option = optionOf(button);
    QRect room = button.rect();
    if (option.features & QStyleOptionToolButton::HasMenu)
        paintMenuArrow(painter, button, option, colors);
    if (option.features & QStyleOptionToolButton::MenuButtonPopup)
        room = button.style()->subControlRect(QStyle::CC_ToolButton, &option, QStyle::SC_ToolButton,
                                              &button);
    QStyleOptionToolButton label(option);
    label.rect = labelRect(button, option, room);
    button.style()->drawControl(QStyle::CE_ToolButtonLabel, &label, &painter, &button);
}

} // namespace Qtitan
