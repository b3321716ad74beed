#pragma once

#include <QLineF>
#include <QRectF>

#include <optional>

class QPainter;
class QPen;

/// The part of a line inside a rectangle; nothing if the line misses it.
std::optional<QLineF> ClipLine(const QLineF& line, const QRectF& rect);

/// Makes a pen begin its dashes as if it had already drawn that length.
void SkipDashes(QPen& pen, double length);

/// Paints the part of a line that is visible in a rectangle. For a line of any length only the
/// visible part is dashed, in the same places as the whole line would be.
void PaintLine(QPainter& painter, QPen pen, const QLineF& line, const QRectF& visible);
