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
    /// `end` is the cursor. Both are world points, in the xy plane of `coordinate`.
    LinearTemporaryDimensionContext(const Coordinate3d& coordinate, const Vector3d& start,
                                    const Vector3d& end);

    Intervald GetFirstValueRange() const override;

    /// Of the angle.
    Intervald GetSecondValueRange() const override;
    bool HasField(InputState state) const override;

    /// The frame in whose xy plane the angle is measured.
    const Coordinate3d& GetCoordinate() const { return m_coordinate; }

    /// Where the segment begins.
    const Vector3d& GetStartPoint() const { return m_start; }

    /// Where the segment ends now: the cursor.
    const Vector3d& GetEndPoint() const { return m_end; }

    /// Whether the dimension is drawn and can be typed; initially true for both.
    bool IsLengthEnabled() const { return m_isLengthEnabled; }

    /// The same for the angle.
    bool IsAngleEnabled() const { return m_isAngleEnabled; }

    /// Shows the length and lets it be typed, or neither.
    void SetLengthEnabled(bool isEnabled) { m_isLengthEnabled = isEnabled; }

    /// The same for the angle.
    void SetAngleEnabled(bool isEnabled) { m_isAngleEnabled = isEnabled; }

    /// Narrows the range of the length or of the angle.
    void SetFirstValueRange(const Intervald& range) { m_firstValueRange = range; }

    /// Narrows the range of the angle, in degrees.
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
