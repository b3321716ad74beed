#pragma once

#include "Model/Area.h"
#include "Model/SketchChange.h"

#include <memory>
#include <vector>

/// Where the entities of a drawing are, so that those in an area are found without looking at the
/// others: an R-tree of their bounds.
///
/// Costs nothing until something is sought for the first time. Then it packs all entities, and
/// follows each change from there; one that moves many makes it pack again. Takes about 30 to 45
/// bytes for each entity. May be used in one thread at a time.
class EntityIndex final
{
public:
    EntityIndex();
    ~EntityIndex();
    EntityIndex(const EntityIndex&) = delete;
    EntityIndex& operator=(const EntityIndex&) = delete;

    /// The drawing is about to be another one.
    void Forget();

    /// That change is about to be applied to these entities.
    void Follow(const std::vector<Entity>& entities, const SketchChange& change);

    /// The entities whose outline or centre may be in the area or on its edge, in drawing order.
    /// Contains all that are, and few others. The entities are those to which all changes were
    /// applied; the result is valid until the next one.
    std::vector<const Entity*> Find(const std::vector<Entity>& entities, const Area& area);

private:
    class Tree;

    std::unique_ptr<Tree> m_pTree; ///< Null until something is sought.
};
