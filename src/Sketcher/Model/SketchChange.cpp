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

template <class Thing>
auto PlaceOf(std::vector<Thing>& things, int id)
{
    return std::lower_bound(things.begin(), things.end(), id,
                            [](const Thing& thing, int sought) { return thing.id < sought; });
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
void ExchangeThings(std::vector<Thing>& things, Digest& digest,
                    std::map<int, std::optional<Thing>>& others)
{
    std::vector<int> gone;
    std::vector<Thing> come;
    for (auto& [id, other] : others)
    {
        const auto place = PlaceOf(things, id);
        const bool isThere = place != things.end() && place->id == id;
        if (isThere)
            digest.Remove(CanonicalBytes(*place));
        if (other.has_value())
            digest.Add(CanonicalBytes(*other));

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

void Exchange(SketchContent& content, Digest& digest, SketchChange& change)
{
    ExchangeThings(content.layers, digest, change.layers);
    ExchangeThings(content.entities, digest, change.entities);
    if (!change.name.has_value())
        return;
    digest.Remove(CanonicalBytesOfName(content.name));
    std::swap(content.name, *change.name);
    digest.Add(CanonicalBytesOfName(content.name));
}
