#pragma once

#include "Model/AreaSelection.h"
#include "Model/Crossings.h"
#include "Model/Grid.h"
#include "Model/ShapeMeasure.h"
#include "Model/ShapePieces.h"
#include "Model/Sketch.h"
#include "Model/SnapPoints.h"
#include "Model/Snapper.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

/// What is found by looking at every entity of a drawing, in drawing order.
class PlainSearch final
{
public:
    /// The sketch is not owned.
    explicit PlainSearch(const Sketch& sketch) : m_sketch(sketch) {}

    int Pick(const vesk::Vector3d& point, double reach) const
    {
        int picked = 0;
        double nearest = reach;
        for (const Entity& entity : m_sketch.GetEntities())
        {
            const double distance = DistanceTo(entity.shape, point);
            if (distance > nearest || !m_sketch.CanPick(entity.id))
                continue;
            nearest = distance;
            picked = entity.id;
        }
        return picked;
    }

    std::vector<int> InArea(const Area& area, AreaRule rule) const
    {
        std::vector<int> ids;
        for (const Entity& entity : m_sketch.GetEntities())
        {
            if (m_sketch.CanPick(entity.id) && Applies(rule, area, entity.shape))
                ids.push_back(entity.id);
        }
        return ids;
    }

    /// The point to which a snapper with all kinds on snaps; at will without ends.
    std::optional<Snapper::Caught> Snap(const vesk::Vector3d& cursor, double reach, double gridStep,
                                        bool withEnds) const
    {
        Best ends{cursor, reach, {}};
        Best others{cursor, reach, {}};
        OfferPointsOfOutlines(reach, ends, others);
        if (withEnds && ends.caught.has_value())
            return ends.caught;
        for (const Entity& entity : m_sketch.GetEntities())
        {
            const std::optional<vesk::Vector3d> centre = CentreOf(entity.shape);
            if (centre.has_value() && m_sketch.LayerOf(entity).isVisible)
                others.Offer(Snapper::Centre, *centre);
        }
        OfferIntersections(others);
        if (others.caught.has_value())
            return others.caught;
        Best grid{cursor, reach, {}};
        grid.Offer(Snapper::Grid, {std::round(cursor.x() / gridStep) * gridStep,
                                   std::round(cursor.y() / gridStep) * gridStep, 0.0});
        return grid.caught;
    }

private:
    struct Best
    {
        vesk::Vector3d cursor;
        double distance;
        std::optional<Snapper::Caught> caught;

        void Offer(Snapper::Kind kind, const vesk::Vector3d& point)
        {
            if ((point - cursor).norm() > distance)
                return;
            distance = (point - cursor).norm();
            caught = {kind, point};
        }
    };

    struct NearPiece
    {
        double distance;
        int id;
        Piece piece;
    };

    void OfferPointsOfOutlines(double reach, Best& ends, Best& middles) const
    {
        for (const Entity& entity : m_sketch.GetEntities())
        {
            if (!m_sketch.LayerOf(entity).isVisible ||
                DistanceTo(entity.shape, ends.cursor) > reach)
                continue;
            for (const vesk::Vector3d& point : EndsOf(entity.shape))
                ends.Offer(Snapper::End, point);
            for (const vesk::Vector3d& point : MiddlesOf(entity.shape))
                middles.Offer(Snapper::Middle, point);
        }
    }

    std::vector<NearPiece> PiecesWithin(double reach, const vesk::Vector3d& cursor) const
    {
        std::vector<NearPiece> pieces;
        for (const Entity& entity : m_sketch.GetEntities())
        {
            if (!m_sketch.LayerOf(entity).isVisible)
                continue;
            VisitPieces(entity.shape, [&](const auto& piece) {
                const double distance = DistanceTo(piece, cursor);
                if (distance <= reach)
                    pieces.push_back({distance, entity.id, piece});
            });
        }
        std::stable_sort(pieces.begin(), pieces.end(), [](const NearPiece& a, const NearPiece& b) {
            return a.distance < b.distance;
        });
        return pieces;
    }

    void OfferIntersections(Best& best) const
    {
        const std::vector<NearPiece> pieces = PiecesWithin(best.distance, best.cursor);
        for (auto second = pieces.begin(); second != pieces.end(); ++second)
        {
            for (auto first = pieces.begin(); first != second; ++first)
            {
                if (first->id == second->id)
                    continue;
                for (const vesk::Vector3d& point : Cross(first->piece, second->piece))
                    best.Offer(Snapper::Intersection, point);
            }
        }
    }

    const Sketch& m_sketch;
};
