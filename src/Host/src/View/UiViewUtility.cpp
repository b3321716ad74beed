#include "View/UiViewUtility.h"

#include "View/IModelView.h"
#include "View/IUiView.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vesk
{

namespace
{

const IModelView* FindModelView(const IUiView* pView)
{
    return pView != nullptr ? pView->GetModelView() : nullptr;
}

/// The value clamped to the range of `T`; 0 for NaN.
template <class T>
T Saturate(double value)
{
    if (std::isnan(value))
        return T{};
    return static_cast<T>(
        std::clamp<double>(value, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max()));
}

}

Eigen::Vector2d UiViewUtility::ToPixel(const IModelView& modelView, const Vector3d& world)
{
    Eigen::Vector2d pixel;
    double depth = 0.0;
    modelView.WorldToScreen(world, pixel.x(), pixel.y(), depth);
    return pixel;
}

void UiViewUtility::WorldPositionToScreenPosition(const IUiView* pView, const Vector3d& world,
                                                  int& x, int& y, float& depth)
{
    double exactX = 0;
    double exactY = 0;
    double exactDepth = 0;
    if (const IModelView* pModelView = FindModelView(pView))
        pModelView->WorldToScreen(world, exactX, exactY, exactDepth);
    x = Saturate<int>(std::round(exactX));
    y = Saturate<int>(std::round(exactY));
    depth = Saturate<float>(exactDepth);
}

double UiViewUtility::ComputeWorldWidthFromPixel(const IUiView* pView, int pixels)
{
    const IModelView* pModelView = FindModelView(pView);
    return pModelView != nullptr ? pixels * pModelView->GetWorldPerPixel() : 0.0;
}

}
