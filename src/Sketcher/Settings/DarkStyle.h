#pragma once

#include "Settings/TitleIconStyle.h"

/// The toolkit's own style, with the frames of check and radio buttons, which it draws black, in a
/// colour of the palette.
class DarkStyle final : public TitleIconStyle
{
    Q_OBJECT

public:
    static constexpr char Name[] = "dark";

    DarkStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* pOption, QPainter* pPainter,
                       const QWidget* pWidget) const override;
};
