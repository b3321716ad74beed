#include "Settings/DarkStyle.h"

#include <QPainter>
#include <QPalette>
#include <QStyleOption>

namespace
{

void DrawFrame(QPainter& painter, const QStyleOption& option, bool isRound)
{
    const QRectF frame = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, isRound);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(option.palette.color(QPalette::Disabled, QPalette::WindowText));
    if (isRound)
        painter.drawEllipse(frame);
    else
        painter.drawRect(frame);
    painter.restore();
}

}

DarkStyle::DarkStyle() : TitleIconStyle(QLatin1String(Name), QStringLiteral("fusion")) {}

void DarkStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* pOption,
                              QPainter* pPainter, const QWidget* pWidget) const
{
    TitleIconStyle::drawPrimitive(element, pOption, pPainter, pWidget);
    const bool isRound = element == PE_IndicatorRadioButton;
    if (isRound || element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck)
        DrawFrame(*pPainter, *pOption, isRound);
}
