#include "Model/Picking.h"

#include "Model/ShapeMeasure.h"
#include "Model/Sketch.h"

#include "View/UiViewUtility.h"

using namespace vesk;

double CursorReach(const IUiView* pView)
{
    constexpr int ReachPixels = 10;
    return UiViewUtility::ComputeWorldWidthFromPixel(pView, ReachPixels);
}

int PickEntity(const Sketch& sketch, const Vector3d& world, const IUiView* pView)
{
    double nearest = CursorReach(pView);
    int picked = 0;
    for (const Entity* pEntity : sketch.FindIn(Area::Around(world, nearest)))
    {
        const double distance = DistanceTo(pEntity->shape, world);
        if (distance > nearest || !sketch.CanPick(*pEntity))
            continue;
        nearest = distance;
        picked = pEntity->id;
    }
    return picked;
}
