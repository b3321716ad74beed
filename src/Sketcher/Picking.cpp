#include "Picking.h"

#include "Sketch.h"

#include "View/UiViewUtility.h"

#include <algorithm>

using namespace vesk;

double CursorReach(const IUiView* pView)
{
    constexpr int ReachPixels = 10;
    return UiViewUtility::ComputeWorldWidthFromPixel(pView, ReachPixels);
}

double DistanceTo(const Entity& entity, const Vector3d& point)
{
    const Vector3d way = entity.end - entity.start;
    const double along = (point - entity.start).dot(way) / way.squaredNorm();
    return (entity.start + std::clamp(along, 0.0, 1.0) * way - point).norm();
}

int PickEntity(const Sketch& sketch, const Vector3d& world, const IUiView* pView)
{
    double nearest = CursorReach(pView);
    int picked = 0;
    for (const Entity& entity : sketch.GetEntities())
    {
        const double distance = DistanceTo(entity, world);
        if (distance > nearest)
            continue;
        nearest = distance;
        picked = entity.id;
    }
    return picked;
}
