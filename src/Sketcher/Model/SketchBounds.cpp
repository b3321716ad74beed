#include "Model/SketchBounds.h"

#include "Model/Sketch.h"

std::optional<ShapeBounds> BoundsOf(const Sketch& sketch)
{
    std::optional<ShapeBounds> all;
    for (const Entity& entity : sketch.GetEntities())
    {
        if (!sketch.LayerOf(entity).isVisible)
            continue;
        const ShapeBounds bounds = BoundsOf(entity.shape);
        if (!all.has_value())
            all = bounds;
        all->low = all->low.cwiseMin(bounds.low);
        all->high = all->high.cwiseMax(bounds.high);
    }
    return all;
}
