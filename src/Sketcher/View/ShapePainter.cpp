#include "View/ShapePainter.h"

#include "Model/Overloaded.h"
#include "Model/ShapePieces.h"
#include "View/ArcPainter.h"
#include "View/LinePainter.h"

#include "HostUi/ViewPixel.h"
#include "View/IModelView.h"

#include <QPen>

#include <cmath>

using vesk::IModelView;
using vesk::ToPixel;
using vesk::Vector3d;

namespace
{

/// An arc in the drawing plane, seen from above.
ScreenArc ToScreen(const IModelView& modelView, const ArcShape& arc)
{
    const Vector3d spoke = arc.start - arc.centre;
    return {ToPixel(modelView, arc.centre), arc.radius / modelView.GetWorldPerPixel(),
            std::atan2(spoke.y(), spoke.x()), std::copysign(SweepOf(arc), arc.normal.z())};
}

}

void PaintShape(QPainter& painter, const QPen& pen, const Shape& shape, const IModelView& modelView,
                const QRectF& visible)
{
    VisitPieces(
        shape,
        Overloaded{
            [&](const LineShape& line) {
                const QLineF seen(ToPixel(modelView, line.start), ToPixel(modelView, line.end));
                PaintLine(painter, pen, seen, visible);
            },
            [&](const ArcShape& arc) { PaintArc(painter, pen, ToScreen(modelView, arc), visible); },
        });
}
