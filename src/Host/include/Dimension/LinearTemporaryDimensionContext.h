#pragma once

#include "Dimension/ITemporaryDimensionContext.h"
#include "Foundation/HostExport.h"
#include "Geometry/Coordinate3d.h"
#include "Geometry/Vector3d.h"

namespace vesk
{

/// A segment from a start point to the cursor, with its length and its angle to the plane's x axis.
///
/// Lengths from MIN_MODEL_SIZE to MAX_MODEL_SIZE millimetres and angles from -360 to 360 degrees
/// may be typed.
class VESK_HOST_API LinearTemporaryDimensionContext final : public ITemporaryDimensionContext
{
public:
    LinearTemporaryDimensionContext(const Coordinate3d& coordinate, const Vector3d& start,
                                    const Vector3d& end);

    Intervald GetFirstValueRange() const override;
    Intervald GetSecondValueRange() const override;
    bool HasField(InputState state) const override;

    const Coordinate3d& GetCoordinate() const { return m_coordinate; }
    const Vector3d& GetStartPoint() const { return m_start; }
    const Vector3d& GetEndPoint() const { return m_end; }

    /// Whether the dimension is drawn and can be typed; initially true for both.
    bool IsLengthEnabled() const { return m_isLengthEnabled; }
    bool IsAngleEnabled() const { return m_isAngleEnabled; }
    void SetLengthEnabled(bool isEnabled) { m_isLengthEnabled = isEnabled; }
    void SetAngleEnabled(bool isEnabled) { m_isAngleEnabled = isEnabled; }

    /// Narrows the range of the length or of the angle.
    void SetFirstValueRange(const Intervald& range) { m_firstValueRange = range; }
    void SetSecondValueRange(const Intervald& range) { m_secondValueRange = range; }

private:
    Coordinate3d m_coordinate;
    Vector3d m_start;
    Vector3d m_end;
    bool m_isLengthEnabled = true;
    bool m_isAngleEnabled = true;
    Intervald m_firstValueRange;
    Intervald m_secondValueRange;
};

}
