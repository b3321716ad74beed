#pragma once

#include "Geometry/Vector3d.h"

/// An axis-aligned rectangle in the drawing plane.
struct Area
{
    vesk::Vector3d low;
    vesk::Vector3d high;

    /// The area between any two opposite corners.
    static Area Between(const vesk::Vector3d& corner, const vesk::Vector3d& opposite)
    {
        return {corner.cwiseMin(opposite), corner.cwiseMax(opposite)};
    }

    /// All that is no farther from a point than that in x and in y.
    static Area Around(const vesk::Vector3d& point, double distance)
    {
        const vesk::Vector3d reach(distance, distance, 0.0);
        return {point - reach, point + reach};
    }
};
