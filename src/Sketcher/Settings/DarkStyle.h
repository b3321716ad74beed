#pragma once

#include <QProxyStyle>

/// The toolkit's own style, with what it draws black or not at all on dark colours in the colours
/// of the palette: the frames of check and radio buttons, and the buttons in the titles of panes.
class DarkStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    static constexpr char Name[] = "dark";

    DarkStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* pOption, QPainter* pPainter,
                       const QWidget* pWidget) const override;
    QIcon standardIcon(StandardPixmap standard, const QStyleOption* pOption,
                       const QWidget* pWidget) const override;
};
