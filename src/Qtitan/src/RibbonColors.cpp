#include "RibbonColors.h"

#include <QPalette>

namespace Qtitan
{

namespace
{

QColor mixed(const QColor& from, const QColor& to, qreal share)
{
    return QColor::fromRgbF(from.redF() + (to.redF() - from.redF()) * share,
                            from.greenF() + (to.greenF() - from.greenF()) * share,
                            from.blueF() + (to.blueF() - from.blueF()) * share);
}

QColor pageColor(const QPalette& palette)
{
    const QColor window = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    const bool isDark = window.lightness() < text.lightness();
    return isDark ? mixed(window, text, 0.06) : mixed(window, palette.color(QPalette::Base), 0.65);
}

} // namespace

RibbonColors::RibbonColors(const QPalette& palette)
    : tabRow(palette.color(QPalette::Window)), page(pageColor(palette)),
      text(palette.color(QPalette::WindowText)), accent(palette.color(QPalette::Highlight))
{
    line = mixed(page, text, 0.16);
    quietText = mixed(text, page, 0.34);
    hover = mixed(page, accent, 0.14);
    pressed = mixed(page, accent, 0.34);
    checked = mixed(page, accent, 0.24);
    checkedEdge = mixed(page, accent, 0.7);
}

QString ribbonStyleSheet(const RibbonColors& colors)
{
    static const QString s_sheet = QStringLiteral(R"(
Qtitan--RibbonButtonControl > QToolButton, Qtitan--RibbonColumn > QToolButton,
Qtitan--RibbonPage > QToolButton
{ border: 1px solid transparent; border-radius: 4px; padding: 2px; }
Qtitan--RibbonPage > QToolButton { background: %5; border-color: %6; border-radius: 0; padding: 0; }
Qtitan--RibbonButtonControl > QToolButton[popupMode="1"], Qtitan--RibbonColumn > QToolButton[popupMode="1"]
{ padding-right: 15px; }
Qtitan--RibbonButtonControl > QToolButton:checked, Qtitan--RibbonColumn > QToolButton:checked
{ background: %3; border-color: %4; }
Qtitan--RibbonButtonControl > QToolButton:hover, Qtitan--RibbonColumn > QToolButton:hover,
Qtitan--RibbonPage > QToolButton:hover
{ background: %1; border-color: %3; }
Qtitan--RibbonButtonControl > QToolButton:checked:hover, Qtitan--RibbonColumn > QToolButton:checked:hover
{ background: %2; border-color: %4; }
Qtitan--RibbonButtonControl > QToolButton:pressed, Qtitan--RibbonColumn > QToolButton:pressed,
Qtitan--RibbonPage > QToolButton:pressed
{ background: %2; border-color: %4; }
Qtitan--RibbonButtonControl > QToolButton:focus, Qtitan--RibbonColumn > QToolButton:focus
{ border-color: %4; }
Qtitan--RibbonButtonControl > QToolButton::menu-button, Qtitan--RibbonColumn > QToolButton::menu-button
{ border: none; width: 15px; }
)");
    return s_sheet.arg(colors.hover.name(), colors.pressed.name(), colors.checked.name(),
                       colors.checkedEdge.name(), colors.page.name(), colors.line.name());
}

} // namespace Qtitan
