#include "Dimension/RadiusTemporaryDimensionContext.h"

#include "Dimension/DimensionRanges.h"

namespace vesk
{

RadiusTemporaryDimensionContext::RadiusTemporaryDimensionContext(const Coordinate3d& coordinate,
                                                                 const Vector3d& first,
                                                                 const Vector3d& second,
                                                                 const Vector3d& third)
    : m_coordinate(coordinate), m_first(first), m_second(second), m_third(third),
      m_radiusRange(DefaultLengthRange())
{}

Intervald RadiusTemporaryDimensionContext::GetSecondValueRange() const
{
    return DefaultAngleRange();
}

}
