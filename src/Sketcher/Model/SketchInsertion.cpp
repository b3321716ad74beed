#include "Model/SketchInsertion.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <utility>

namespace
{

std::size_t FreeIdsAfter(int last)
{
    return static_cast<std::size_t>(SketchContent::GreatestId - last);
}

/// The layers at the place for those with entities of another drawing, by their ids there; notes in
/// the change which are to be added.
std::map<int, int> MatchLayers(const SketchContent& content, const InsertionPlace& place,
                               SketchChange& change)
{
    std::set<int> used;
    for (const Entity& entity : content.entities)
        used.insert(entity.pen.layer);
    std::map<int, int> ids;
    int lastId = place.lastLayerId;
    for (const int otherId : used)
    {
        Layer layer = *FindById(content.layers, otherId);
        const auto own =
            std::find_if(place.layers.begin(), place.layers.end(),
                         [&layer](const Layer& known) { return known.name == layer.name; });
        const bool isMissing = own == place.layers.end();
        layer.id = isMissing ? ++lastId : own->id;
        if (isMissing)
            change.layers[layer.id] = layer;
        ids[otherId] = layer.id;
    }
    return ids;
}

}

SketchInsertion MakeInsertion(const SketchContent& content, InsertionPlace place)
{
    SketchInsertion insertion{std::move(place), {}};
    const auto& [layers, lastId, lastLayerId] = insertion.place;
    if (content.entities.size() > FreeIdsAfter(lastId) ||
        content.layers.size() > FreeIdsAfter(lastLayerId) || !IsValid(content))
        return insertion;
    SketchChange& change = insertion.change;
    const std::map<int, int> layerIds = MatchLayers(content, insertion.place, change);
    int id = lastId;
    for (const Entity& entity : content.entities)
    {
        Entity inserted = entity;
        inserted.id = ++id;
        inserted.pen.layer = layerIds.at(entity.pen.layer);
        change.entities.emplace_hint(change.entities.end(), inserted.id, inserted);
    }
    // None of what it adds is there yet.
    change.difference = DifferenceOf(SketchContent(), change);
    return insertion;
}
