#include "Settings/HighContrastStyle.h"

#include <QPainter>
#include <QStyleOption>

HighContrastStyle::HighContrastStyle()
    : TitleIconStyle(QLatin1String(Name), QStringLiteral("windows"))
{}

void HighContrastStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* pOption,
                                      QPainter* pPainter, const QWidget* pWidget) const
{
    // A box around each text of the status bar tells nothing.
    if (element == PE_FrameStatusBarItem)
        return;
    TitleIconStyle::drawPrimitive(element, pOption, pPainter, pWidget);
    if (element != PE_IndicatorDockWidgetResizeHandle)
        return;
    QRect line = pOption->rect;
    const bool isUpright = line.width() < line.height();
    line.setSize(isUpright ? QSize(1, line.height()) : QSize(line.width(), 1));
    line.moveCenter(pOption->rect.center());
    pPainter->fillRect(line, pOption->palette.color(QPalette::WindowText));
}

int HighContrastStyle::styleHint(StyleHint hint, const QStyleOption* pOption,
                                 const QWidget* pWidget, QStyleHintReturn* pReturned) const
{
    return hint == SH_EtchDisabledText
               ? 0
               : TitleIconStyle::styleHint(hint, pOption, pWidget, pReturned);
}
