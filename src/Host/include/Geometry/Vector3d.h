#pragma once

#include "Foundation/HostExport.h"

#include <Eigen/Core>

namespace vesk
{

/// A point or a direction, in millimetres. Default construction leaves it uninitialised, as with a
/// double.
using Vector3d = Eigen::Vector3d;

/// Compares points.
class VESK_HOST_API Vector3dUtils
{
public:
    /// True when the two are at most `tolerance` apart.
    static bool IsEqual(const Vector3d& a, const Vector3d& b, double tolerance);
};

}
