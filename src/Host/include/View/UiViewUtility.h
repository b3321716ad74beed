#pragma once

#include "Foundation/HostExport.h"
#include "Geometry/Vector3d.h"

namespace vesk
{

class IModelView;
class IUiView;

/// Converts between a view's pixels and the world.
class VESK_HOST_API UiViewUtility
{
public:
    /// The position of a world point in a view, in pixels.
    static Eigen::Vector2d ToPixel(const IModelView& modelView, const Vector3d& world);

    /// The view pixel nearest to a world point. Without a view or model view all results are 0.
    static void WorldPositionToScreenPosition(const IUiView* pView, const Vector3d& world, int& x,
                                              int& y, float& depth);

    /// The world width of a number of pixels; 0 without a view or model view.
    static double ComputeWorldWidthFromPixel(const IUiView* pView, int pixels);
};

}
