#pragma once

#include "Model/Sketch.h"

#include <QMetaType>

#include <variant>
#include <vector>

using Ids = std::vector<int>;

Q_DECLARE_METATYPE(Ids)

/// The shape of an entity that is a line.
inline const LineShape& LineOf(const Sketch& sketch, int id)
{
    return std::get<LineShape>(sketch.Find(id)->shape);
}

/// The ids of all entities, in their order.
inline Ids IdsOf(const Sketch& sketch)
{
    Ids ids;
    for (const Entity& entity : sketch.GetEntities())
        ids.push_back(entity.id);
    return ids;
}
