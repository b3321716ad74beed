#pragma once

#include <QColor>
#include <QString>

class QPalette;

namespace Qtitan
{

/// The colours of the ribbon, all of them mixed from one palette.
struct RibbonColors
{
    explicit RibbonColors(const QPalette& palette);

    QColor tabRow;
    QColor page;
    QColor line;
    QColor text;
    QColor quietText;
    QColor accent;
    QColor hover;
    QColor pressed;
    QColor checked;
    QColor checkedEdge;
};

/// The style sheet that gives placed buttons their states. It leaves fonts and text colours to
/// the palette, and says nothing of any other widget.
QString ribbonStyleSheet(const RibbonColors& colors);

} // namespace Qtitan
