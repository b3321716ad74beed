#include "Model/SketchContent.h"

#include <algorithm>
#include <cstddef>
#include <set>

namespace
{

template <class Thing>
bool AreIdsAscending(const std::vector<Thing>& things)
{
    const auto isOutOfOrder = [](const Thing& a, const Thing& b) { return a.id >= b.id; };
    return std::adjacent_find(things.begin(), things.end(), isOutOfOrder) == things.end();
}

template <class Value>
bool IsIndex(int index, const std::vector<Value>& values)
{
    return index >= 0 && static_cast<std::size_t>(index) < values.size();
}

bool AreLayersValid(const SketchContent& content)
{
    std::set<std::wstring> names;
    for (const Layer& layer : content.layers)
    {
        if (layer.name.empty() || !names.insert(layer.name).second ||
            !IsIndex(layer.colour, LineColours()))
            return false;
    }
    return !content.layers.empty() && content.layers.front().id == Layer::BaseId &&
           AreIdsAscending(content.layers) && content.layers.back().id <= content.lastLayerId &&
           content.lastLayerId <= SketchContent::GreatestId;
}

bool IsPenValid(const Pen& pen, const SketchContent& content)
{
    return IsIndex(pen.style, LineStyles()) && IsIndex(pen.colour, LineColours()) &&
           IsIndex(pen.width, LineWidths()) && FindById(content.layers, pen.layer) != nullptr;
}

}

bool operator==(const Entity& a, const Entity& b)
{
    return a.id == b.id && a.shape == b.shape && a.pen == b.pen;
}

bool IsValid(const SketchContent& content)
{
    const auto isValid = [&content](const Entity& entity) {
        return IsDrawable(entity.shape) && IsPenValid(entity.pen, content);
    };
    const bool isEmpty = content.entities.empty();
    return AreLayersValid(content) && AreIdsAscending(content.entities) &&
           (isEmpty ||
            (content.entities.front().id > 0 && content.entities.back().id <= content.lastId)) &&
           content.lastId >= 0 && content.lastId <= SketchContent::GreatestId &&
           IsPenValid(content.currentPen, content) &&
           std::all_of(content.entities.begin(), content.entities.end(), isValid);
}
