#include "Model/Snapper.h"

#include "Model/Crossings.h"
#include "Model/Grid.h"
#include "Model/Picking.h"
#include "Model/ShapeMeasure.h"
#include "Model/ShapePieces.h"
#include "Model/Sketch.h"
#include "Model/SnapPoints.h"

#include "View/UiViewUtility.h"

#include <algorithm>
#include <cmath>
#include <iterator>

using namespace vesk;

namespace
{

/// The nearest of the offered points within reach of the cursor.
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

    /// The distance of the point found; the reach if there is none yet.
    double GetDistance() const { return m_distance; }

private:
    Vector3d m_cursor;
    double m_distance;
    std::optional<Snapper::Caught> m_found;
};

/// Those of some entities whose outlines are within reach of the cursor.
std::vector<const Entity*> Within(double reach, const Vector3d& cursor,
                                  const std::vector<const Entity*>& entities)
{
    std::vector<const Entity*> near;
    std::copy_if(
        entities.begin(), entities.end(), std::back_inserter(near),
        [&](const Entity* pEntity) { return DistanceTo(pEntity->shape, cursor) <= reach; });
    return near;
}

/// A piece of the outline of an entity.
struct NearPiece
{
    double distance;
    const Entity* pEntity;
    Piece piece;
};

/// The pieces of entities within reach of the cursor, nearest first.
std::vector<NearPiece> PiecesNear(const std::vector<const Entity*>& entities,
                                  const Vector3d& cursor, double reach)
{
    std::vector<NearPiece> pieces;
    for (const Entity* pEntity : entities)
    {
        VisitPieces(pEntity->shape, [&](const auto& piece) {
            const double distance = DistanceTo(piece, cursor);
            if (distance <= reach)
                pieces.push_back({distance, pEntity, piece});
        });
    }
    std::stable_sort(pieces.begin(), pieces.end(), [](const NearPiece& a, const NearPiece& b) {
        return a.distance < b.distance;
    });
    return pieces;
}

void OfferIntersections(const std::vector<NearPiece>& pieces, Nearest& nearest)
{
    for (auto second = pieces.begin(); second != pieces.end(); ++second)
    {
        // No intersection is nearer than either piece.
        if (second->distance > nearest.GetDistance())
            return;
        for (auto first = pieces.begin(); first != second; ++first)
        {
            if (first->pEntity == second->pEntity)
                continue;
            for (const Vector3d& point : Cross(first->piece, second->piece))
                nearest.Offer(Snapper::Intersection, point);
        }
    }
}

void OfferAll(Snapper::Kind kind, const std::vector<Vector3d>& points, Nearest& nearest)
{
    for (const Vector3d& point : points)
        nearest.Offer(kind, point);
}

/// A centre may be far from its outline.
void OfferCentres(const std::vector<const Entity*>& entities, Nearest& nearest)
{
    for (const Entity* pEntity : entities)
    {
        if (const std::optional<Vector3d> centre = CentreOf(pEntity->shape))
            nearest.Offer(Snapper::Centre, *centre);
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
    const std::vector<const Entity*> around = GetAround(cursor, reach);
    const std::vector<const Entity*> near = Within(reach, cursor, around);
    Nearest ends(cursor, reach);
    Nearest others(cursor, reach);
    for (const Entity* pEntity : near)
    {
        OfferAll(End, EndsOf(pEntity->shape), ends);
        if (IsOn(Middle))
            OfferAll(Middle, MiddlesOf(pEntity->shape), others);
    }
    if (IsOn(End) && ends.Get().has_value())
        return ends.Get();
    if (IsOn(Centre))
        OfferCentres(around, others);
    if (IsOn(Intersection))
        OfferIntersections(PiecesNear(near, cursor, reach), others);
    if (others.Get().has_value() || !IsOn(Grid))
        return others.Get();
    Nearest grid(cursor, reach);
    grid.Offer(Grid, NearestGridPoint(cursor, gridStep));
    return grid.Get();
}

/// The visible entities whose outlines or centres may be within reach of the cursor.
std::vector<const Entity*> Snapper::GetAround(const Vector3d& cursor, double reach) const
{
    std::vector<const Entity*> entities = m_sketch.FindIn(Area::Around(cursor, reach));
    const auto isHidden = [this](const Entity* pEntity) {
        return !m_sketch.LayerOf(*pEntity).isVisible;
    };
    entities.erase(std::remove_if(entities.begin(), entities.end(), isHidden), entities.end());
    return entities;
}
