#pragma once

#include <QProxyStyle>

/// The toolkit's plainest style, which draws all edges in colours of the palette, with what it
/// leaves out or draws in others: the lines between panes, the buttons in their titles, and
/// disabled texts without a second one behind them.
class HighContrastStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    static constexpr char Name[] = "contrast";

    HighContrastStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* pOption, QPainter* pPainter,
                       const QWidget* pWidget) const override;
    QIcon standardIcon(StandardPixmap standard, const QStyleOption* pOption,
                       const QWidget* pWidget) const override;
    int styleHint(StyleHint hint, const QStyleOption* pOption, const QWidget* pWidget,
                  QStyleHintReturn* pReturned) const override;
};
