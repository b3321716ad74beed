#include "Clipboard/ClipboardContent.h"

#include "Model/ShapeTransform.h"
#include "Model/Sketch.h"

#include <algorithm>
#include <set>

using vesk::Vector3d;

SketchContent ContentOf(const Sketch& sketch, const std::vector<int>& ids)
{
    const std::set<int> ascending(ids.begin(), ids.end());
    std::set<int> layers = {Layer::BaseId};
    SketchContent content;
    for (const int id : ascending)
    {
        if (const Entity* pEntity = sketch.Find(id))
        {
            content.entities.push_back(*pEntity);
            layers.insert(pEntity->pen.layer);
        }
    }
    content.layers.clear();
    for (const int id : layers)
        content.layers.push_back(*sketch.FindLayer(id));
    content.name = sketch.GetName();
    content.lastId = content.entities.empty() ? 0 : content.entities.back().id;
    content.lastLayerId = content.layers.back().id;
    return content;
}

SketchContent Translated(const SketchContent& content, const Vector3d& way)
{
    SketchContent moved = content;
    for (Entity& entity : moved.entities)
        entity.shape = Translated(entity.shape, way);
    return moved;
}

Vector3d FindFreeWay(const Sketch& sketch, const SketchContent& content, double step, int least)
{
    // Who pastes this often at one place does not mind.
    constexpr int Most = 100;
    const Vector3d direction(step, -step, 0.0);
    if (content.entities.empty())
        return least * direction;
    const Shape& first = content.entities.front().shape;
    const auto covers = [&](const Vector3d& way) {
        const Shape moved = Translated(first, way);
        return std::any_of(sketch.GetEntities().begin(), sketch.GetEntities().end(),
                           [&moved](const Entity& entity) { return entity.shape == moved; });
    };
    int count = least;
    while (count < Most && covers(count * direction))
        ++count;
    return count * direction;
}
