#pragma once

#include <QLineF>
#include <QRectF>

#include <optional>

class QPainter;
class QPen;

/// The part of a line inside a rectangle; nothing when it passes by.
std::optional<QLineF> ClipLine(const QLineF& line, const QRectF& rect);

/// Has a pen begin its dashes as if it had been drawn for a length before.
void SkipDashes(QPen& pen, double length);

/// Paints the part of a line that can be seen in a rectangle. A line may be as long as it likes:
/// only what is seen is dashed, in the same places as all of it would be.
void PaintLine(QPainter& painter, QPen pen, const QLineF& line, const QRectF& visible);
