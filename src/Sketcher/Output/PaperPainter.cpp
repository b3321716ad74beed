#include "Output/PaperPainter.h"

#include "Model/ArcGeometry.h"
#include "Model/Overloaded.h"
#include "Model/ShapePieces.h"
#include "Model/SketchContent.h"
#include "View/ArcPainter.h"
#include "View/LinePainter.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include <cmath>
#include <cstddef>
#include <map>

using vesk::Vector3d;

namespace
{

/// The layers of a drawing by id, and how their entities are drawn on paper.
class PaperPens
{
public:
    explicit PaperPens(const SketchContent& content)
    {
        for (const Layer& layer : content.layers)
            m_layers.emplace(layer.id, &layer);
    }

    bool IsVisible(const Entity& entity) const
    {
        const auto found = m_layers.find(entity.pen.layer);
        return found == m_layers.end() || found->second->isVisible;
    }

    QPen Make(const Entity& entity) const
    {
        const auto style = LineStyles()[static_cast<std::size_t>(entity.pen.style)].style;
        const double width = LineWidths()[static_cast<std::size_t>(entity.pen.width)].millimetres;
        // Other caps would lengthen each dash.
        return {ColourOf(entity), width, style, style == Qt::SolidLine ? Qt::RoundCap : Qt::FlatCap,
                Qt::MiterJoin};
    }

private:
    QColor ColourOf(const Entity& entity) const
    {
        const auto found = m_layers.find(entity.pen.layer);
        const int ofLayer = found != m_layers.end() ? found->second->colour : 0;
        const int index = entity.pen.colour != 0 ? entity.pen.colour : ofLayer;
        const QColor& colour = LineColours()[static_cast<std::size_t>(index)].colour;
        return colour.isValid() ? colour : QColor(Qt::black);
    }

    std::map<int, const Layer*> m_layers;
};

/// Converts from the drawing to the paper.
class PaperGeometry
{
public:
    explicit PaperGeometry(const PaperPlacement& placement) : m_placement(placement) {}

    QPointF Map(const Vector3d& point) const
    {
        return {(point.x() - m_placement.topLeft.x()) * m_placement.scale,
                (m_placement.topLeft.y() - point.y()) * m_placement.scale};
    }

    QLineF Map(const LineShape& line) const { return {Map(line.start), Map(line.end)}; }

    ScreenArc Map(const ArcShape& arc) const
    {
        const Vector3d spoke = arc.start - arc.centre;
        return {Map(arc.centre), arc.radius * m_placement.scale, std::atan2(spoke.y(), spoke.x()),
                std::copysign(SweepOf(arc), arc.normal.z())};
    }

    QRectF Map(const ShapeBounds& bounds) const
    {
        return QRectF(Map(bounds.low), Map(bounds.high)).normalized();
    }

private:
    const PaperPlacement& m_placement;
};

/// Adds a part of an arc as curves so short that they stay within a millionth of the radius.
void AddArc(QPainterPath& path, const ScreenArc& arc, const ArcPart& part)
{
    constexpr double MostPerCurve = 0.5;
    const double sweep = part.to - part.from;
    const int count = 1 + static_cast<int>(sweep / MostPerCurve);
    const double step = sweep / count;
    const double reach = 4.0 / 3.0 * std::tan(step / 4.0);
    const auto ahead = [&arc, reach](double angle) {
        constexpr double QuarterTurn = 1.5707963267948966;
        return (arc.PointAt(angle + QuarterTurn) - arc.centre) * reach;
    };
    if (path.elementCount() == 0)
        path.moveTo(arc.PointAt(part.from));
    for (int i = 0; i < count; ++i)
    {
        const double from = part.from + step * i;
        const double to = part.from + step * (i + 1);
        path.cubicTo(arc.PointAt(from) + ahead(from), arc.PointAt(to) - ahead(to), arc.PointAt(to));
    }
}

void PaintWhole(QPainter& painter, const QPen& pen, const Shape& shape,
                const PaperGeometry& geometry)
{
    QPainterPath path;
    VisitPieces(shape, Overloaded{
                           [&](const LineShape& line) {
                               if (path.elementCount() == 0)
                                   path.moveTo(geometry.Map(line.start));
                               path.lineTo(geometry.Map(line.end));
                           },
                           [&](const ArcShape& arc) {
                               const ScreenArc mapped = geometry.Map(arc);
                               AddArc(path, mapped, {0.0, std::abs(mapped.sweep)});
                           },
                       });
    painter.setPen(pen);
    painter.drawPath(path);
}

void PaintPart(QPainter& painter, const QPen& pen, const Shape& shape,
               const PaperGeometry& geometry, const QRectF& visible)
{
    const auto paintArc = [&](const ArcShape& arc) {
        const ScreenArc mapped = geometry.Map(arc);
        for (const ArcPart& part : ClipArc(mapped, visible))
        {
            QPainterPath path;
            AddArc(path, mapped, part);
            QPen dashed = pen;
            SkipDashes(dashed, part.from * mapped.radius);
            painter.setPen(dashed);
            painter.drawPath(path);
        }
    };
    VisitPieces(shape, Overloaded{
                           [&](const LineShape& line) {
                               PaintLine(painter, pen, geometry.Map(line), visible);
                           },
                           paintArc,
                       });
}

}

PaperPlacement PaperPlacement::Around(const ShapeBounds& bounds, double scale, double margin,
                                      double unit)
{
    // A sheet that fits exactly must not grow by a unit because of rounding errors.
    constexpr double Tolerance = 1e-6;
    const auto roundUp = [unit](double length) {
        return std::ceil(length / unit - Tolerance) * unit;
    };
    const Vector3d size = (bounds.high - bounds.low) * scale;
    const double inDrawing = margin / scale;
    return {scale,
            {bounds.low.x() - inDrawing, bounds.high.y() + inDrawing, 0.0},
            {roundUp(size.x() + 2.0 * margin), roundUp(size.y() + 2.0 * margin)}};
}

PaperPlacement PaperPlacement::Centred(const ShapeBounds& bounds, double scale, const QSizeF& paper)
{
    const Vector3d middle = (bounds.low + bounds.high) / 2.0;
    const Vector3d toCorner(-paper.width() / 2.0 / scale, paper.height() / 2.0 / scale, 0.0);
    return {scale, middle + toCorner, paper};
}

std::optional<ShapeBounds> VisibleBounds(const SketchContent& content)
{
    const PaperPens pens(content);
    std::optional<ShapeBounds> all;
    for (const Entity& entity : content.entities)
    {
        if (!pens.IsVisible(entity))
            continue;
        const ShapeBounds bounds = BoundsOf(entity.shape);
        all = all.has_value()
                  ? ShapeBounds{all->low.cwiseMin(bounds.low), all->high.cwiseMax(bounds.high)}
                  : bounds;
    }
    return all;
}

bool PaintOnPaper(QPainter& painter, const SketchContent& content, const PaperPlacement& placement,
                  const OutputProgress& progress)
{
    constexpr std::size_t EntitiesPerReport = 256;
    constexpr double WidestLine = 5.0;
    const QRectF visible = QRectF(QPointF(0.0, 0.0), placement.paper)
                               .adjusted(-WidestLine, -WidestLine, WidestLine, WidestLine);
    const PaperPens pens(content);
    const PaperGeometry geometry(placement);
    painter.setBrush(Qt::NoBrush);
    const std::size_t count = content.entities.size();
    for (std::size_t i = 0; i < count; ++i)
    {
        if (i % EntitiesPerReport == 0 &&
            !progress(static_cast<double>(i) / static_cast<double>(count)))
            return false;
        const Entity& entity = content.entities[i];
        if (!pens.IsVisible(entity))
            continue;
        // The bounds of a straight line have no area, which QRectF::intersects would not find.
        if (visible.contains(geometry.Map(BoundsOf(entity.shape))))
            PaintWhole(painter, pens.Make(entity), entity.shape, geometry);
        else
            PaintPart(painter, pens.Make(entity), entity.shape, geometry, visible);
    }
    return true;
}
