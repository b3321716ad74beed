#pragma once

#include <QColor>

class QPalette;

namespace Qtitan
{

/// The colours of the ribbon, all mixed from one palette.
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

} // namespace Qtitan
