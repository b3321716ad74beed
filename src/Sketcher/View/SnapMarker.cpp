#include "View/SnapMarker.h"

#include "Model/UiText.h"

#include "HostUi/Contrast.h"

#include <QPainter>
#include <QPointF>
#include <QPolygonF>
#include <QString>

namespace
{

constexpr double Size = 6.0;

/// The marks that are customary in drawing programs.
void PaintShape(QPainter& painter, Snapper::Kind kind)
{
    const QRectF box(-Size, -Size, 2 * Size, 2 * Size);
    switch (kind)
    {
    case Snapper::End:
        painter.drawRect(box);
        break;
    case Snapper::Middle:
        painter.drawPolygon(QPolygonF({{-Size, Size}, {Size, Size}, {0.0, -Size}}));
        break;
    case Snapper::Centre:
        painter.drawEllipse(box);
        break;
    case Snapper::Intersection:
        painter.drawLine(box.topLeft(), box.bottomRight());
        painter.drawLine(box.topRight(), box.bottomLeft());
        break;
    case Snapper::Grid:
        painter.drawLine(QPointF(-Size, 0.0), QPointF(Size, 0.0));
        painter.drawLine(QPointF(0.0, -Size), QPointF(0.0, Size));
        break;
    }
}

}

QString SnapCaption(Snapper::Kind kind)
{
    constexpr const char* Captions[Snapper::KindCount] = {
        "端点"_source, "中点"_source, "圆心"_source, "交点"_source, "栅格"_source};
    return Tr(Captions[kind]);
}

void PaintSnapMarker(QPainter& painter, Snapper::Kind kind, const QPointF& position,
                     const QPalette& palette)
{
    const QColor ink = vesk::Legible(QColor(0x2e, 0x9e, 0x4f), palette);
    painter.save();
    painter.translate(position);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ink, 2.0));
    PaintShape(painter, kind);
    painter.setPen(ink);
    painter.drawText(QPointF(Size + 4.0, -Size - 2.0), SnapCaption(kind));
    painter.restore();
}
