#pragma once

#include "Settings/TitleIconStyle.h"

/// The toolkit's plainest style, which draws all edges in colours of the palette, with the lines
/// between panes that it leaves out, and disabled texts without a second one behind them.
class HighContrastStyle final : public TitleIconStyle
{
    Q_OBJECT

public:
    static constexpr char Name[] = "contrast";

    HighContrastStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* pOption, QPainter* pPainter,
                       const QWidget* pWidget) const override;
    int styleHint(StyleHint hint, const QStyleOption* pOption, const QWidget* pWidget,
                  QStyleHintReturn* pReturned) const override;
};
