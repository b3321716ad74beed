#include "View/ArcPainter.h"

#include "Model/Polar.h"
#include "View/LinePainter.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace
{

/// The greatest radius, in pixels, at which QPainter's curves stay within a twentieth of a pixel of
/// the circle.
constexpr double GreatestCurve = 200.0;

QRectF SquareAround(const ScreenArc& arc)
{
    return {arc.centre.x() - arc.radius, arc.centre.y() - arc.radius, 2.0 * arc.radius,
            2.0 * arc.radius};
}

/// Adds the angle from the start of the arc to a direction, if the arc passes through it.
void AddCut(const ScreenArc& arc, double right, double up, std::vector<double>& cuts)
{
    const double direction = arc.sweep < 0.0 ? -1.0 : 1.0;
    const double angle = std::fmod(direction * (std::atan2(up, right) - arc.start), FullTurn);
    const double ahead = angle < 0.0 ? angle + FullTurn : angle;
    if (ahead < std::abs(arc.sweep))
        cuts.push_back(ahead);
}

/// The angles at which the full circle crosses the lines through the sides of a rectangle, and the
/// arc's ends. A line that misses the circle gives NaN, which is never added.
std::vector<double> CutAtSides(const ScreenArc& arc, const QRectF& rect)
{
    std::vector<double> cuts = {0.0, std::abs(arc.sweep)};
    const auto across = [&arc](double way) {
        return std::sqrt((arc.radius - way) * (arc.radius + way));
    };
    for (const double x : {rect.left() - arc.centre.x(), rect.right() - arc.centre.x()})
    {
        AddCut(arc, x, across(x), cuts);
        AddCut(arc, x, -across(x), cuts);
    }
    for (const double y : {arc.centre.y() - rect.top(), arc.centre.y() - rect.bottom()})
    {
        AddCut(arc, across(y), y, cuts);
        AddCut(arc, -across(y), y, cuts);
    }
    std::sort(cuts.begin(), cuts.end());
    return cuts;
}

double Degrees(double radians)
{
    return radians / FullTurn * 360.0;
}

/// QPainter's curves are faster to paint than many chords.
QPainterPath CurveOf(const ScreenArc& arc, const ArcPart& part)
{
    const double direction = arc.sweep < 0.0 ? -1.0 : 1.0;
    const double start = Degrees(arc.start + direction * part.from);
    const double sweep = part.to - part.from;
    QPainterPath path;
    path.arcMoveTo(SquareAround(arc), start);
    path.arcTo(SquareAround(arc), start, direction * Degrees(sweep));
    return path;
}

/// Points so close that the chords between them look like the arc.
QPolygonF PointsOf(const ScreenArc& arc, const ArcPart& part)
{
    constexpr double Deviation = 0.05;
    const double step = std::sqrt(8.0 * Deviation / arc.radius);
    const int count = 1 + static_cast<int>((part.to - part.from) / step);
    QPolygonF points;
    for (int i = 0; i <= count; ++i)
        points << arc.PointAt(part.from + (part.to - part.from) * i / count);
    return points;
}

}

QPointF ScreenArc::PointAt(double angle) const
{
    const double direction = start + (sweep < 0.0 ? -angle : angle);
    return {centre.x() + radius * std::cos(direction), centre.y() - radius * std::sin(direction)};
}

std::vector<ArcPart> ClipArc(const ScreenArc& arc, const QRectF& rect)
{
    const QRectF square = SquareAround(arc);
    if (rect.contains(square))
        return {{0.0, std::abs(arc.sweep)}};
    if (!rect.intersects(square))
        return {};
    std::vector<ArcPart> parts;
    const std::vector<double> cuts = CutAtSides(arc, rect);
    for (std::size_t i = 1; i < cuts.size(); ++i)
    {
        if (!rect.contains(arc.PointAt((cuts[i - 1] + cuts[i]) / 2)))
            continue;
        if (!parts.empty() && parts.back().to == cuts[i - 1])
            parts.back().to = cuts[i];
        else
            parts.push_back({cuts[i - 1], cuts[i]});
    }
    return parts;
}

void PaintArc(QPainter& painter, QPen pen, const ScreenArc& arc, const QRectF& visible)
{
    for (const ArcPart& part : ClipArc(arc, visible))
    {
        SkipDashes(pen, part.from * arc.radius);
        if (arc.radius <= GreatestCurve)
        {
            painter.strokePath(CurveOf(arc, part), pen);
            continue;
        }
        painter.setPen(pen);
        painter.drawPolyline(PointsOf(arc, part));
    }
}
