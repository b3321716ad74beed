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

} // namespace Qtitan
