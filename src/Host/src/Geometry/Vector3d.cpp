#include "Geometry/Vector3d.h"

namespace vesk
{

bool Vector3dUtils::IsEqual(const Vector3d& a, const Vector3d& b, double tolerance)
{
    return (a - b).stableNorm() <= tolerance;
}

}
