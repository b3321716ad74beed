#include "Dimension/RectangleTemporaryDimensionContext.h"

#include "Dimension/DimensionRanges.h"

namespace vesk
{

RectangleTemporaryDimensionContext::RectangleTemporaryDimensionContext(
    const Coordinate3d& coordinate, const Vector3d& corner, const Vector3d& opposite)
    : m_coordinate(coordinate), m_corner(corner), m_opposite(opposite),
      m_sizeRange(DefaultLengthRange())
{}

Intervald RectangleTemporaryDimensionContext::GetSecondValueRange() const
{
    return DefaultAngleRange();
}

}
