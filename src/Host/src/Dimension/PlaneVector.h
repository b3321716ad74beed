#pragma once

#include <Eigen/Core>

namespace vesk
{

/// A point or direction of the drawing plane, in pixels along its x and y axes.
using PlaneVector = Eigen::Vector2d;

/// The direction rotated by 90 degrees counter-clockwise.
inline PlaneVector TurnLeft(const PlaneVector& direction)
{
    return {-direction.y(), direction.x()};
}

}
