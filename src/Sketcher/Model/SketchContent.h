#pragma once

#include "Model/Layer.h"
#include "Model/Pen.h"
#include "Model/Shape.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

/// One shape of the drawing. Its id is never reused.
struct Entity
{
    int id = 0;
    Shape shape;
    Pen pen;
};

bool operator==(const Entity& a, const Entity& b);

/// Fields of a drawing file that this version of the program does not know, as JSON objects in
/// text form, so that they survive reading and saving.
struct UnknownFields
{
    std::string document;   ///< Empty for none.
    std::string currentPen; ///< The same.
    std::map<int, std::string> layers;
    std::map<int, std::string> entities;
};

/// Everything that a drawing file keeps.
struct SketchContent
{
    /// No id of an entity or a layer is greater: neither a drawing nor a file may have it.
    static constexpr int GreatestId = 2000000000;

    std::wstring name;
    std::vector<Layer> layers = {Layer()}; ///< By ascending id; the base layer comes first.
    std::vector<Entity> entities;          ///< By ascending id, the order in which they are drawn.
    int lastId = 0;                        ///< The greatest id that an entity ever had.
    int lastLayerId = 0;                   ///< The same of a layer.
    Pen currentPen;                        ///< Its layer exists.
    UnknownFields unknown;
};

/// The first of things by ascending id whose id is not less; the end if there is none. Takes longer
/// only as more ids before it are missing.
template <class Things>
auto PlaceOf(Things& things, int id)
{
    if (things.empty() || id <= things.front().id)
        return things.begin();
    // As ids ascend, it is at most so far from the first as its id is greater.
    const std::ptrdiff_t farthest = std::ptrdiff_t(id) - things.front().id;
    auto high = things.begin() + std::min(farthest, std::ptrdiff_t(things.size()));
    auto low = high - 1;
    for (std::ptrdiff_t step = 2; low->id >= id; step *= 2)
    {
        high = low;
        low -= std::min(step, low - things.begin());
    }
    return std::lower_bound(low, high, id,
                            [](const auto& thing, int sought) { return thing.id < sought; });
}

/// The thing with that id among things by ascending id; null if there is none.
template <class Thing>
const Thing* FindById(const std::vector<Thing>& things, int id)
{
    const auto found = PlaceOf(things, id);
    return found != things.end() && found->id == id ? &*found : nullptr;
}

/// True if the content keeps the rules above, its pens exist, its layers have different names and
/// its shapes are drawable.
bool IsValid(const SketchContent& content);
