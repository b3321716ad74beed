#include "Panes/ColourSwatch.h"

#include <QPainter>
#include <QPixmap>

QIcon MakeColourSwatch(const QColor& colour)
{
    // Large enough for screens with a scale factor of 2.
    constexpr int Size = 32;
    constexpr int Margin = 4;
    QPixmap picture(Size, Size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(QPen(QColor(0x80, 0x80, 0x80), 2.0));
    painter.setBrush(colour);
    painter.drawRect(picture.rect().adjusted(Margin, Margin, -Margin, -Margin));
    painter.end();
    QIcon icon(picture);
    // A selected row must not tint it.
    icon.addPixmap(picture, QIcon::Selected);
    return icon;
}
