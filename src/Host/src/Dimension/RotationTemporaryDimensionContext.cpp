#include "Dimension/RotationTemporaryDimensionContext.h"

#include "Dimension/DimensionRanges.h"

namespace vesk
{

RotationTemporaryDimensionContext::RotationTemporaryDimensionContext(const Coordinate3d& coordinate,
                                                                     const Vector3d& centre,
                                                                     const Vector3d& from,
                                                                     const Vector3d& to)
    : m_coordinate(coordinate), m_centre(centre), m_from(from), m_to(to),
      m_angleRange(DefaultAngleRange())
{}

Intervald RotationTemporaryDimensionContext::GetFirstValueRange() const
{
    return DefaultLengthRange();
}

}
