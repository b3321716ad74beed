#include "Settings/TitleIconStyle.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

namespace
{

/// A cross, or two windows one behind the other.
QIcon Draw(bool isClosing, const QColor& colour)
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

TitleIconStyle::TitleIconStyle(const QString& name, const QString& base) : QProxyStyle(base)
{
    setObjectName(name);
}

QIcon TitleIconStyle::standardIcon(StandardPixmap standard, const QStyleOption* pOption,
                                   const QWidget* pWidget) const
{
    const bool isClosing = standard == SP_TitleBarCloseButton;
    if (!isClosing && standard != SP_TitleBarNormalButton)
        return QProxyStyle::standardIcon(standard, pOption, pWidget);
    return Draw(isClosing, QGuiApplication::palette().color(QPalette::WindowText));
}
