#include "HostUi/ElidedLabel.h"

#include <QPainter>
#include <QStyle>

namespace vesk
{

ElidedLabel::ElidedLabel(QWidget* pParent) : QLabel(pParent)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {1, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* pEvent)
{
    const QRect room = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
    if (shown == text())
    {
        QLabel::paintEvent(pEvent);
        return;
    }
    QPainter painter(this);
    style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                          palette(), isEnabled(), shown);
}

}
