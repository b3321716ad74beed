#include "Dimension/LinearTemporaryDimensionContext.h"

#include "Dimension/DimensionRanges.h"

namespace vesk
{

LinearTemporaryDimensionContext::LinearTemporaryDimensionContext(const Coordinate3d& coordinate,
                                                                 const Vector3d& start,
                                                                 const Vector3d& end)
    : m_coordinate(coordinate), m_start(start), m_end(end), m_firstValueRange(DefaultLengthRange()),
      m_secondValueRange(DefaultAngleRange())
{}

Intervald LinearTemporaryDimensionContext::GetFirstValueRange() const
{
    return m_firstValueRange;
}

Intervald LinearTemporaryDimensionContext::GetSecondValueRange() const
{
    return m_secondValueRange;
}

bool LinearTemporaryDimensionContext::HasField(InputState state) const
{
    return state == InputState::IS_Angle ? m_isAngleEnabled : m_isLengthEnabled;
}

}
