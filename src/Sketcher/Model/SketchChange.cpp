#include "Model/SketchChange.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace
{

template <class Thing>
bool IsBefore(const Thing& a, const Thing& b)
{
    return a.id < b.id;
}

/// Removes the things with those ascending ids.
template <class Thing>
void Remove(std::vector<Thing>& things, const std::vector<int>& ids)
{
    if (ids.empty())
        return;
    const auto isGone = [&ids](const Thing& thing) {
        return std::binary_search(ids.begin(), ids.end(), thing.id);
    };
    things.erase(std::remove_if(PlaceOf(things, ids.front()), things.end(), isGone), things.end());
}

/// Adds others by ascending id to things by ascending id.
template <class Thing>
void Merge(std::vector<Thing>& things, const std::vector<Thing>& others)
{
    if (others.empty())
        return;
    const auto first = PlaceOf(things, others.front().id) - things.begin();
    const auto middle = static_cast<std::ptrdiff_t>(things.size());
    things.insert(things.end(), others.begin(), others.end());
    std::inplace_merge(things.begin() + first, things.begin() + middle, things.end(),
                       IsBefore<Thing>);
}

template <class Thing>
void AddDifference(const std::vector<Thing>& things,
                   const std::map<int, std::optional<Thing>>& others, Digest& difference)
{
    for (const auto& [id, other] : others)
    {
        if (const Thing* pThing = FindById(things, id))
            difference.Remove(CanonicalBytes(*pThing));
        if (other.has_value())
            difference.Add(CanonicalBytes(*other));
    }
}

template <class Thing>
void ExchangeThings(std::vector<Thing>& things, std::map<int, std::optional<Thing>>& others)
{
    std::vector<int> gone;
    std::vector<Thing> come;
    for (auto& [id, other] : others)
    {
        const auto place = PlaceOf(things, id);
        const bool isThere = place != things.end() && place->id == id;
        if (isThere && other.has_value())
            std::swap(*place, *other);
        else if (isThere)
            gone.push_back((other = *place)->id);
        else if (other.has_value())
            come.push_back(*std::exchange(other, std::nullopt));
    }
    Remove(things, gone);
    Merge(things, come);
}

}

bool IsAddition(const SketchContent& content, const SketchChange& change)
{
    const auto isNewLayer = [&content](const auto& layer) {
        return FindById(content.layers, layer.first) == nullptr;
    };
    const bool areEntitiesNew = change.entities.empty() || content.entities.empty() ||
                                change.entities.begin()->first > content.entities.back().id;
    return areEntitiesNew && std::all_of(change.layers.begin(), change.layers.end(), isNewLayer);
}

bool KeepsShapes(const SketchContent& content, const SketchChange& change)
{
    return std::all_of(
        change.entities.begin(), change.entities.end(), [&content](const auto& changed) {
            const Entity* pEntity = FindById(content.entities, changed.first);
            return pEntity == nullptr ||
                   (changed.second.has_value() && changed.second->shape == pEntity->shape);
        });
}

Digest DifferenceOf(const SketchContent& content, const SketchChange& change)
{
    Digest difference;
    AddDifference(content.layers, change.layers, difference);
    AddDifference(content.entities, change.entities, difference);
    if (!change.name.has_value())
        return difference;
    difference.Remove(CanonicalBytesOfName(content.name));
    difference.Add(CanonicalBytesOfName(*change.name));
    return difference;
}

void Exchange(SketchContent& content, Digest& digest, SketchChange& change)
{
    const Digest difference =
        change.difference.has_value() ? *change.difference : DifferenceOf(content, change);
    digest += difference;
    change.difference = Digest();
    *change.difference -= difference;
    ExchangeThings(content.layers, change.layers);
    ExchangeThings(content.entities, change.entities);
    if (change.name.has_value())
        std::swap(content.name, *change.name);
}
