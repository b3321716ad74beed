#include "RibbonStyleSheet.h"

#include "RibbonColors.h"
#include "RibbonMetrics.h"

#include <QWidget>

namespace Qtitan
{

namespace
{

const char s_rules[] = R"(
Large, Small { border: 1px solid transparent; border-radius: 4px; padding: 0 2px; }
Large { padding: $paddingpx 3px; }
Large[popupMode="1"], Small[popupMode="1"] { padding-right: 16px; }
Large:checked, Small:checked { background: $checked; border-color: $edge; }
Large:hover, Small:hover { background: $hover; border-color: $checked; }
Large:checked:hover, Small:checked:hover { background: $pressed; border-color: $edge; }
Large:pressed, Small:pressed { background: $pressed; border-color: $edge; }
Large:focus, Small:focus { border-color: $edge; }
Large::menu-button, Small::menu-button { border: none; width: 15px; }
Arrow { background: $page; border: 0 solid $line; border-width: 0 1px; }
Arrow:hover { background: $hover; }
Arrow:pressed { background: $pressed; }
)";

} // namespace

QString ribbonStyleSheet(const QWidget& widget)
{
    const RibbonColors colors(widget.palette());
    QString sheet = QLatin1String(s_rules);
    sheet.replace(QLatin1String("Large"),
                  QLatin1String("Qtitan--RibbonButtonControl > QToolButton"));
    sheet.replace(QLatin1String("Small"), QLatin1String("Qtitan--RibbonColumn > QToolButton"));
    sheet.replace(QLatin1String("Arrow"), QLatin1String("Qtitan--RibbonPage > QToolButton"));
    sheet.replace(QLatin1String("$padding"),
                  QString::number(RibbonMetrics::largeButtonPadding(widget)));
    sheet.replace(QLatin1String("$checked"), colors.checked.name());
    sheet.replace(QLatin1String("$hover"), colors.hover.name());
    sheet.replace(QLatin1String("$pressed"), colors.pressed.name());
    sheet.replace(QLatin1String("$edge"), colors.checkedEdge.name());
    sheet.replace(QLatin1String("$page"), colors.page.name());
    sheet.replace(QLatin1String("$line"), colors.line.name());
    return sheet;
}

} // namespace Qtitan
