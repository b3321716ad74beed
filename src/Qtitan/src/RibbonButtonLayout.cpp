#include "RibbonButtonLayout.h"

#include "Qtitan/RibbonButtonControl.h"
#include "RibbonMetrics.h"

#include <QToolButton>

namespace Qtitan
{

namespace
{

constexpr int ArrowSize = 7;
constexpr int ArrowMargin = 3;
/// Between the edge of a small button and its content, and between its icon and its caption.
constexpr int SmallMargin = 4;

/// The checked state of a split button reflects how often it was clicked, not what is going on.
bool showsMark(const QToolButton& button)
{
    return button.isChecked() && button.popupMode() != QToolButton::MenuButtonPopup;
}

QStyle::State stateOf(const QToolButton& button)
{
    QStyle::State state = QStyle::State_None;
    state.setFlag(QStyle::State_Enabled, button.isEnabled());
    state.setFlag(QStyle::State_Active, button.isActiveWindow());
    state.setFlag(QStyle::State_AutoRaise, button.autoRaise());
    state.setFlag(QStyle::State_On, showsMark(button));
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

QRect menuPartOf(const QToolButton& button, const QStyleOptionToolButton& option)
{
    if (!(option.features & QStyleOptionToolButton::MenuButtonPopup))
        return QRect();
    return button.style()->subControlRect(QStyle::CC_ToolButton, &option, QStyle::SC_ToolButtonMenu,
                                          &button);
}

QSize captionSize(const QStyleOptionToolButton& option)
{
    return option.fontMetrics.size(Qt::TextShowMnemonic, option.text);
}

/// Captions are left-aligned whether or not their buttons have an icon.
int smallCaptionLeft(const QStyleOptionToolButton& option)
{
    return SmallMargin + option.iconSize.width() + SmallMargin;
}

/// The width that a small button reserves at its right end for the menu arrow.
int smallArrowRoom(const QToolButton& button, const QStyleOptionToolButton& option)
{
    if (option.features & QStyleOptionToolButton::MenuButtonPopup)
        return button.style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, &button);
    const bool hasMenu = option.features & QStyleOptionToolButton::HasMenu;
    return hasMenu ? ArrowSize + ArrowMargin : 0;
}

QRect arrowRect(const QStyleOptionToolButton& option, const QRect& menuPart, RibbonButtonForm form)
{
    if (!(option.features & QStyleOptionToolButton::HasMenu))
        return QRect();
    QRect arrow(0, 0, ArrowSize, ArrowSize);
    arrow.moveCenter(menuPart.isEmpty() ? option.rect.center() : menuPart.center());
    if (!menuPart.isEmpty())
        return arrow;
    arrow.moveRight(option.rect.right() - ArrowMargin);
    if (form == RibbonButtonForm::Large)
        arrow.moveBottom(option.rect.bottom() - ArrowMargin);
    return arrow;
}

/// The label without the gap between an icon and the caption under it.
QStyleOptionToolButton largeLabel(const QStyleOptionToolButton& option, const QRect& menuPart)
{
    QStyleOptionToolButton label(option);
    label.rect.adjust(0, 0, -menuPart.width(), 0);
    if (option.toolButtonStyle != Qt::ToolButtonTextUnderIcon || option.icon.isNull())
        return label;
    const int slack =
        label.rect.height() - option.iconSize.height() - captionSize(option).height() - 6;
    if (slack > 0)
        label.rect.adjust(0, slack / 2, 0, slack / 2 - slack);
    return label;
}

QStyleOptionToolButton smallLabel(const QStyleOptionToolButton& option,
                                  Qt::ToolButtonStyle labelStyle, int left, int width)
{
    QStyleOptionToolButton label(option);
    label.toolButtonStyle = labelStyle;
    label.rect = QRect(left, 0, width, option.rect.height());
    return label;
}

std::vector<QStyleOptionToolButton> smallLabels(const QStyleOptionToolButton& option)
{
    const bool hasIcon =
        !option.icon.isNull() || (option.features & QStyleOptionToolButton::Arrow) != 0;
    std::vector<QStyleOptionToolButton> labels;
    if (hasIcon)
        labels.push_back(
            smallLabel(option, Qt::ToolButtonIconOnly, SmallMargin, option.iconSize.width()));
    if (!option.text.isEmpty())
        labels.push_back(smallLabel(option, Qt::ToolButtonTextOnly, smallCaptionLeft(option),
                                    captionSize(option).width()));
    return labels;
}

QSize smallSize(const QToolButton& button)
{
    const QStyleOptionToolButton option = optionOf(button);
    const int content = option.text.isEmpty()
                            ? SmallMargin + option.iconSize.width()
                            : smallCaptionLeft(option) + captionSize(option).width();
    const int height =
        qMax(RibbonMetrics::rowHeight(button), option.iconSize.height() + SmallMargin);
    return QSize(content + SmallMargin + smallArrowRoom(button, option), height);
}

} // namespace

RibbonButtonLayout::RibbonButtonLayout(const QToolButton& button, RibbonButtonForm form)
    : option(optionOf(button)), menuPart(menuPartOf(button, option)),
      arrow(arrowRect(option, menuPart, form))
{
    if (form == RibbonButtonForm::Small)
        labels = smallLabels(option);
    else
        labels.push_back(largeLabel(option, menuPart));
}

QSize ribbonButtonSize(const QToolButton& button, RibbonButtonForm form)
{
    if (form == RibbonButtonForm::Small)
        return smallSize(button);
    return button.sizeHint().expandedTo(QSize(RibbonMetrics::LargeButtonWidth, 0));
}

} // namespace Qtitan
