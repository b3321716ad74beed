#pragma once

#include "View/UiViewUtility.h"

#include <QPointF>

namespace vesk
{

/// Where a view shows a world point, in its pixels.
inline QPointF ToPixel(const IModelView& modelView, const Vector3d& world)
{
    const Eigen::Vector2d pixel = UiViewUtility::ToPixel(modelView, world);
    return {pixel.x(), pixel.y()};
}

}
