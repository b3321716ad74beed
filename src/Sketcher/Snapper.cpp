#include "Snapper.h"

#include "Grid.h"
#include "Picking.h"
#include "ShapeMeasure.h"
#include "Sketch.h"

#include "View/UiViewUtility.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>

using namespace vesk;

namespace
{

/// The nearest of the points offered, within reach of the cursor.
class Nearest
{
public:
    Nearest(const Vector3d& cursor, double reach) : m_cursor(cursor), m_distance(reach) {}

    void Offer(Snapper::Kind kind, const Vector3d& point)
    {
        const double distance = (point - m_cursor).norm();
        if (distance > m_distance)
            return;
        m_distance = distance;
        m_found = {kind, point};
    }

    const std::optional<Snapper::Caught>& Get() const { return m_found; }

private:
    Vector3d m_cursor;
    double m_distance;
    std::optional<Snapper::Caught> m_found;
};

/// Where two segments cross or touch; nothing for parallel ones.
std::optional<Vector3d> Intersect(const LineShape& first, const LineShape& second)
{
    const Vector3d a = first.end - first.start;
    const Vector3d b = second.end - second.start;
    const double area = a.x() * b.y() - a.y() * b.x();
    if (area == 0.0)
        return std::nullopt;
    const Vector3d way = second.start - first.start;
    const double onFirst = (way.x() * b.y() - way.y() * b.x()) / area;
    const double onSecond = (way.x() * a.y() - way.y() * a.x()) / area;
    const bool isOnBoth = onFirst >= 0.0 && onFirst <= 1.0 && onSecond >= 0.0 && onSecond <= 1.0;
    return isOnBoth ? std::optional<Vector3d>(first.start + onFirst * a) : std::nullopt;
}

void OfferIntersections(const std::vector<LineShape>& entities, Nearest& nearest)
{
    for (auto first = entities.begin(); first != entities.end(); ++first)
    {
        for (auto second = std::next(first); second != entities.end(); ++second)
        {
            if (const std::optional<Vector3d> point = Intersect(*first, *second))
                nearest.Offer(Snapper::Intersection, *point);
        }
    }
}

Vector3d NearestGridPoint(const Vector3d& cursor, double step)
{
    return {std::round(cursor.x() / step) * step, std::round(cursor.y() / step) * step, 0.0};
}

}

Snapper::Snapper(const Sketch& sketch) : m_sketch(sketch)
{
    SetOn(End, true);
}

Vector3d Snapper::Catch(const Vector3d& cursor, const IUiView* pView)
{
    m_caught.reset();
    const double pixel = UiViewUtility::ComputeWorldWidthFromPixel(pView, 1);
    if (pixel > 0.0)
        m_caught = Find(cursor, CursorReach(pView), GridStep(pixel));
    return m_caught.has_value() ? m_caught->point : cursor;
}

std::optional<Snapper::Caught> Snapper::Find(const Vector3d& cursor, double reach,
                                             double gridStep) const
{
    const std::vector<LineShape> entities = GetNear(cursor, reach);
    Nearest ends(cursor, reach);
    Nearest others(cursor, reach);
    for (const LineShape& entity : entities)
    {
        ends.Offer(End, entity.start);
        ends.Offer(End, entity.end);
        if (IsOn(Middle))
            others.Offer(Middle, (entity.start + entity.end) / 2);
    }
    if (IsOn(End) && ends.Get().has_value())
        return ends.Get();
    if (IsOn(Intersection))
        OfferIntersections(entities, others);
    if (others.Get().has_value() || !IsOn(Grid))
        return others.Get();
    Nearest grid(cursor, reach);
    grid.Offer(Grid, NearestGridPoint(cursor, gridStep));
    return grid.Get();
}

std::vector<LineShape> Snapper::GetNear(const Vector3d& cursor, double reach) const
{
    std::vector<LineShape> lines;
    for (const Entity& entity : m_sketch.GetEntities())
    {
        const auto* pLine = std::get_if<LineShape>(&entity.shape);
        if (pLine != nullptr && DistanceTo(entity.shape, cursor) <= reach)
            lines.push_back(*pLine);
    }
    return lines;
}
