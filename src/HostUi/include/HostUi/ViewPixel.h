#pragma once

#include "View/UiViewUtility.h"

#include <QPointF>

namespace vesk
{

/// The position of a world point in a view, in the view's pixels.
inline QPointF ToPixel(const IModelView& modelView, const Vector3d& world)
{
    const Eigen::Vector2d pixel = UiViewUtility::ToPixel(modelView, world);
    return {pixel.x(), pixel.y()};
}

}
