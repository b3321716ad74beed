#include "Dimension/LinearTemporaryDimensionContext.h"

#include "Dimension/LengthUnit.h"
#include "Geometry/Constants.h"

namespace vesk
{

LinearTemporaryDimensionContext::LinearTemporaryDimensionContext(const Coordinate3d& coordinate,
                                                                 const Vector3d& start,
                                                                 const Vector3d& end)
    : m_coordinate(coordinate), m_start(start), m_end(end),
      m_firstValueRange(LengthUnit::GetCurrent().ToShown(
          Intervald(Constants::MIN_MODEL_SIZE, Constants::MAX_MODEL_SIZE))),
      m_secondValueRange(-360.0, 360.0)
{}

Intervald LinearTemporaryDimensionContext::GetFirstValueRange() const
{
    return m_firstValueRange;
}

Intervald LinearTemporaryDimensionContext::GetSecondValueRange() const
{
    return m_secondValueRange;
}

}
