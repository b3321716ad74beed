#pragma once

#include "Geometry/Vector3d.h"

#include <optional>

class QKeyEvent;
class QPainter;
class QPalette;
class QPointF;

namespace vesk
{

/// The direction of an arrow key, one unit long; nothing for any other key.
std::optional<Vector3d> WayOf(const QKeyEvent& event);

/// The next grid point in a direction: along x or y the next multiple of the step, across it the
/// coordinate stays.
Vector3d NextGridPoint(const Vector3d& from, const Vector3d& way, double step);

/// A point, moved onto the nearest grid line that goes in a direction.
Vector3d OnGrid(const Vector3d& from, const Vector3d& way, double step);

/// Paints the cursor where the arrow keys have put it, at a pixel.
void PaintWalkedCursor(QPainter& painter, const QPointF& pixel, const QPalette& palette);

}
