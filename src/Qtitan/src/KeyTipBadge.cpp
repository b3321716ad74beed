#include "KeyTipBadge.h"

#include <QPainter>

namespace Qtitan
{

KeyTipBadge::KeyTipBadge(const QString& keys, const QPoint& centre, QWidget* pParent)
    : QLabel(keys, pParent)
{
    setObjectName(QStringLiteral("qtitan_keyTip"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    QRect place(QPoint(), sizeHint());
    place.moveCenter(centre);
    const QRect room = pParent->rect();
    place.moveLeft(qBound(room.left(), place.left(), room.right() + 1 - place.width()));
    place.moveTop(qBound(room.top(), place.top(), room.bottom() + 1 - place.height()));
    setGeometry(place);
    raise();
    show();
}

QSize KeyTipBadge::sizeHint() const
{
    const int height = fontMetrics().height() + 2;
    return QSize(qMax(height, fontMetrics().horizontalAdvance(text()) + 10), height);
}

void KeyTipBadge::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // Inverts the ribbon's colours, so that it stands out with every palette.
    painter.setPen(palette().color(QPalette::Window));
    painter.setBrush(palette().color(QPalette::WindowText));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    painter.drawText(rect(), Qt::AlignCenter, text());
}

} // namespace Qtitan
