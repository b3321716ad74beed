#pragma once

#include <QPointF>
#include <QRectF>

#include <vector>

class QPainter;
class QPen;

/// An arc on the screen. Angles are in radians, counter-clockwise as seen, from the positive x
/// direction; a negative sweep is clockwise.
struct ScreenArc
{
    QPointF centre;
    double radius;
    double start;
    double sweep;

    /// The point of the circle at an angle from the start, in the direction of the sweep.
    QPointF PointAt(double angle) const;
};

/// A part of an arc, between two angles from its start.
struct ArcPart
{
    double from;
    double to;
};

/// The parts of an arc inside a rectangle, in order.
std::vector<ArcPart> ClipArc(const ScreenArc& arc, const QRectF& rect);

/// Paints the part of an arc that is visible in a rectangle. For an arc of any size the visible
/// part is round, and dashed in the same places as the whole arc would be.
void PaintArc(QPainter& painter, QPen pen, const ScreenArc& arc, const QRectF& visible);
