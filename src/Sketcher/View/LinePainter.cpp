#include "View/LinePainter.h"

#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace
{

/// Narrows the parameters [from, to] of a line to where `position + t * way` is within [low, high].
/// Returns false if nothing is left.
bool Narrow(double position, double way, double low, double high, double& from, double& to)
{
    if (way == 0.0)
        return position >= low && position <= high;
    const double first = (low - position) / way;
    const double second = (high - position) / way;
    from = std::max(from, std::min(first, second));
    to = std::min(to, std::max(first, second));
    return from <= to;
}

}

std::optional<QLineF> ClipLine(const QLineF& line, const QRectF& rect)
{
    double from = 0.0;
    double to = 1.0;
    const bool isInside = Narrow(line.x1(), line.dx(), rect.left(), rect.right(), from, to) &&
                          Narrow(line.y1(), line.dy(), rect.top(), rect.bottom(), from, to);
    if (!isInside)
        return std::nullopt;
    return QLineF(line.pointAt(from), line.pointAt(to));
}

void SkipDashes(QPen& pen, double length)
{
    if (pen.style() == Qt::SolidLine)
        return;
    const QVector<qreal> pattern = pen.dashPattern();
    const double period = std::accumulate(pattern.begin(), pattern.end(), 0.0);
    pen.setDashOffset(std::fmod(length / pen.widthF(), period));
}

void PaintLine(QPainter& painter, QPen pen, const QLineF& line, const QRectF& visible)
{
    const std::optional<QLineF> seen = ClipLine(line, visible);
    if (!seen.has_value())
        return;
    SkipDashes(pen, QLineF(line.p1(), seen->p1()).length());
    painter.setPen(pen);
    painter.drawLine(*seen);
}
