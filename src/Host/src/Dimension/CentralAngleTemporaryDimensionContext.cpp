#include "Dimension/CentralAngleTemporaryDimensionContext.h"

#include "Dimension/DimensionRanges.h"

namespace vesk
{

CentralAngleTemporaryDimensionContext::CentralAngleTemporaryDimensionContext(
    const Coordinate3d& coordinate, const Vector3d& centre, const Vector3d& start,
    const Vector3d& end, const Vector3d& cursor)
    : m_coordinate(coordinate), m_centre(centre), m_start(start), m_end(end), m_cursor(cursor),
      m_angleRange(DefaultAngleRange())
{}

Intervald CentralAngleTemporaryDimensionContext::GetFirstValueRange() const
{
    return DefaultLengthRange();
}

}
