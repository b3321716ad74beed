#pragma once

#include "Foundation/HostExport.h"
#include "Geometry/Vector3d.h"

namespace vesk
{

class IModelView;
class IUiView;

class VESK_HOST_API UiViewUtility
{
public:
    /// Where a view shows a world point, in its pixels.
    static Eigen::Vector2d ToPixel(const IModelView& modelView, const Vector3d& world);

    /// The view pixel nearest to a world point. Without view or model view everything is 0.
    static void WorldPositionToScreenPosition(const IUiView* pView, const Vector3d& world, int& x,
                                              int& y, float& depth);

    /// The world width of a number of pixels; 0 without view or model view.
    static double ComputeWorldWidthFromPixel(const IUiView* pView, int pixels);
};

}
