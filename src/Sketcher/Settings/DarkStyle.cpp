#include "Settings/DarkStyle.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
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

/// A cross, or two windows one behind the other.
QIcon MakeTitleIcon(bool isClosing, const QColor& colour)
{
    constexpr int Side = 10;
    QIcon icon;
    for (const int scale : {1, 2})
    {
        QPixmap picture(Side * scale, Side * scale);
        picture.setDevicePixelRatio(scale);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing, isClosing);
        painter.setPen(colour);
        if (isClosing)
            painter.drawLines({QLineF(2, 2, 8, 8), QLineF(2, 8, 8, 2)});
        else
            painter.drawPolyline(
                QVector<QPointF>{{3.5, 3.5}, {3.5, 1.5}, {8.5, 1.5}, {8.5, 6.5}, {6.5, 6.5}});
        if (!isClosing)
            painter.drawRect(QRectF(1.5, 3.5, 5, 5));
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

}

DarkStyle::DarkStyle() : QProxyStyle(QStringLiteral("fusion"))
{
    setObjectName(QLatin1String(Name));
}

void DarkStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* pOption,
                              QPainter* pPainter, const QWidget* pWidget) const
{
    QProxyStyle::drawPrimitive(element, pOption, pPainter, pWidget);
    const bool isRound = element == PE_IndicatorRadioButton;
    if (isRound || element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck)
        DrawFrame(*pPainter, *pOption, isRound);
}

QIcon DarkStyle::standardIcon(StandardPixmap standard, const QStyleOption* pOption,
                              const QWidget* pWidget) const
{
    const bool isClosing = standard == SP_TitleBarCloseButton;
    if (!isClosing && standard != SP_TitleBarNormalButton)
        return QProxyStyle::standardIcon(standard, pOption, pWidget);
    // The palette of the option is the pane's, which Qt 6 sets only later than the style.
    return MakeTitleIcon(isClosing, QGuiApplication::palette().color(QPalette::WindowText));
}
