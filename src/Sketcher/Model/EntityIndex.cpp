#include "Model/EntityIndex.h"

#include "Model/ShapeMeasure.h"
#include "Model/SnapPoints.h"

// These headers of the library do not include what they use.
#include <boost/geometry/algorithms/comparable_distance.hpp>
#include <boost/geometry/algorithms/covered_by.hpp>
#include <boost/geometry/algorithms/distance.hpp>
#include <boost/geometry/algorithms/intersects.hpp>
#include <boost/geometry/strategies/strategies.hpp>

#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point.hpp>
#include <boost/geometry/index/rtree.hpp>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

using vesk::Vector3d;

namespace
{

/// A change of more than one in so many entities is not followed: packing all of them is faster.
constexpr std::size_t FollowedShare = 4;

/// Single precision takes half of the memory. Rounding keeps the order of two numbers, so boxes
/// that meet still do.
using BoxCorner = boost::geometry::model::point<float, 2, boost::geometry::cs::cartesian>;
using Box = boost::geometry::model::box<BoxCorner>;

/// True if an entity comes, goes or gets another shape.
bool IsMoved(const Entity* pEntity, const std::optional<Entity>& next)
{
    return pEntity == nullptr || !next.has_value() || !(pEntity->shape == next->shape);
}

float ToFloat(double value)
{
    // Far beyond any drawing, and small enough for the areas of boxes to be numbers.
    constexpr double Greatest = 1e15;
    return static_cast<float>(std::clamp(value, -Greatest, Greatest));
}

/// A box a little larger, by more than the rounding and the tolerances of the exact computations
/// with numbers up to `size`.
Box GrownBox(const Vector3d& low, const Vector3d& high, double size)
{
    const double growth = 1e-8 * (1.0 + size);
    return {BoxCorner(ToFloat(low.x() - growth), ToFloat(low.y() - growth)),
            BoxCorner(ToFloat(high.x() + growth), ToFloat(high.y() + growth))};
}

double GreatestOf(const Vector3d& low, const Vector3d& high)
{
    return low.cwiseAbs().cwiseMax(high.cwiseAbs()).maxCoeff();
}

/// A box, and the entity that has it.
using IndexedBox = std::pair<Box, int>;

bool AreEqual(const BoxCorner& a, const BoxCorner& b)
{
    return a.get<0>() == b.get<0>() && a.get<1>() == b.get<1>();
}

/// The default comparison tolerates rounding, and so would confuse two boxes of one entity.
struct AreSame
{
    bool operator()(const IndexedBox& a, const IndexedBox& b) const
    {
        return a.second == b.second && AreEqual(a.first.min_corner(), b.first.min_corner()) &&
               AreEqual(a.first.max_corner(), b.first.max_corner());
    }
};

bool Contains(const ShapeBounds& bounds, const Vector3d& point)
{
    return (point.array() >= bounds.low.array()).all() &&
           (point.array() <= bounds.high.array()).all();
}

/// Calls `visitor` with the box of the outline and, for a centre outside of that, with its box.
template <class Visitor>
void VisitBoxes(const Entity& entity, const Visitor& visitor)
{
    const ShapeBounds bounds = BoundsOf(entity.shape);
    const std::optional<Vector3d> centre = CentreOf(entity.shape);
    double size = GreatestOf(bounds.low, bounds.high);
    if (centre.has_value())
        size = std::max(size, centre->cwiseAbs().maxCoeff());
    visitor(IndexedBox{GrownBox(bounds.low, bounds.high, size), entity.id});
    if (centre.has_value() && !Contains(bounds, *centre))
        visitor(IndexedBox{GrownBox(*centre, *centre, size), entity.id});
}

std::vector<IndexedBox> BoxesOf(const std::vector<Entity>& entities)
{
    std::vector<IndexedBox> boxes;
    boxes.reserve(entities.size());
    for (const Entity& entity : entities)
        VisitBoxes(entity, [&boxes](const IndexedBox& box) { boxes.push_back(box); });
    return boxes;
}

/// The entities with those ascending ids, which are all there.
std::vector<const Entity*> WithIds(const std::vector<Entity>& entities, const std::vector<int>& ids)
{
    std::vector<const Entity*> found;
    found.reserve(ids.size());
    auto place = entities.begin();
    for (const int id : ids)
    {
        // As ids ascend, an entity is at most so far away as its id is greater.
        const auto last =
            place + std::min<std::ptrdiff_t>(id - place->id, entities.end() - place - 1);
        place = std::lower_bound(
            place, last, id, [](const Entity& entity, int sought) { return entity.id < sought; });
        found.push_back(&*place);
    }
    return found;
}

std::vector<const Entity*> AllOf(const std::vector<Entity>& entities)
{
    std::vector<const Entity*> all;
    all.reserve(entities.size());
    for (const Entity& entity : entities)
        all.push_back(&entity);
    return all;
}

}

class EntityIndex::Tree
{
public:
    explicit Tree(const std::vector<Entity>& entities) : m_boxes(BoxesOf(entities)) {}

    void Add(const Entity& entity)
    {
        VisitBoxes(entity, [this](const IndexedBox& box) { m_boxes.insert(box); });
    }

    void Remove(const Entity& entity)
    {
        VisitBoxes(entity, [this](const IndexedBox& box) { m_boxes.remove(box); });
    }

    bool IsWithin(const Box& area) const
    {
        return boost::geometry::covered_by(m_boxes.bounds(), area);
    }

    /// Ascending.
    std::vector<int> Find(const Box& area) const
    {
        std::vector<int> ids;
        const auto meets = boost::geometry::index::intersects(area);
        for (auto found = m_boxes.qbegin(meets); found != m_boxes.qend(); ++found)
            ids.push_back(found->second);
        std::sort(ids.begin(), ids.end());
        ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
        return ids;
    }

private:
    boost::geometry::index::rtree<IndexedBox, boost::geometry::index::quadratic<16>,
                                  boost::geometry::index::indexable<IndexedBox>, AreSame>
        m_boxes;
};

EntityIndex::EntityIndex() = default;

EntityIndex::~EntityIndex() = default;

void EntityIndex::Forget()
{
    m_pTree.reset();
}

void EntityIndex::Follow(const std::vector<Entity>& entities, const SketchChange& change)
{
    if (m_pTree == nullptr)
        return;
    const auto movedCount = std::count_if(
        change.entities.begin(), change.entities.end(), [&entities](const auto& changed) {
            return IsMoved(FindById(entities, changed.first), changed.second);
        });
    if (static_cast<std::size_t>(movedCount) > entities.size() / FollowedShare + 1)
    {
        Forget();
        return;
    }
    for (const auto& [id, next] : change.entities)
    {
        const Entity* pEntity = FindById(entities, id);
        if (!IsMoved(pEntity, next))
            continue;
        if (pEntity != nullptr)
            m_pTree->Remove(*pEntity);
        if (next.has_value())
            m_pTree->Add(*next);
    }
}

std::vector<const Entity*> EntityIndex::Find(const std::vector<Entity>& entities, const Area& area)
{
    if (m_pTree == nullptr)
        m_pTree = std::make_unique<Tree>(entities);
    const Box box = GrownBox(area.low, area.high, GreatestOf(area.low, area.high));
    return m_pTree->IsWithin(box) ? AllOf(entities) : WithIds(entities, m_pTree->Find(box));
}
