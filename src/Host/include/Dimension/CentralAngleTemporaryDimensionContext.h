#pragma once

#include "Dimension/ITemporaryDimensionContext.h"
#include "Foundation/HostExport.h"
#include "Geometry/Coordinate3d.h"
#include "Geometry/Vector3d.h"

namespace vesk
{

/// An arc about a centre from a start point towards the cursor, with its radius and its central
/// angle, which is counter-clockwise when positive.
///
/// Angles from -360 to 360 degrees may be typed, unless another range is set.
class VESK_HOST_API CentralAngleTemporaryDimensionContext final : public ITemporaryDimensionContext
{
public:
    /// `end` is where the arc ends, on the circle about `centre` through `start`; `cursor` need not
    /// be on it.
    CentralAngleTemporaryDimensionContext(const Coordinate3d& coordinate, const Vector3d& centre,
                                          const Vector3d& start, const Vector3d& end,
                                          const Vector3d& cursor);

    /// Not used: the central angle is all that can be typed.
    Intervald GetFirstValueRange() const override;

    /// In degrees.
    Intervald GetSecondValueRange() const override { return m_angleRange; }

    /// The frame in whose xy plane the arc lies.
    const Coordinate3d& GetCoordinate() const { return m_coordinate; }

    /// The centre of the arc.
    const Vector3d& GetCentre() const { return m_centre; }

    /// Where the arc begins.
    const Vector3d& GetStartPoint() const { return m_start; }

    /// Where the arc ends now.
    const Vector3d& GetEndPoint() const { return m_end; }

    /// Where the cursor is.
    const Vector3d& GetCursorPoint() const { return m_cursor; }

    /// Sets the range of the angle, in degrees.
    void SetSecondValueRange(const Intervald& range) { m_angleRange = range; }

private:
    Coordinate3d m_coordinate;
    Vector3d m_centre;
    Vector3d m_start;
    Vector3d m_end;
    Vector3d m_cursor;
    Intervald m_angleRange;
};

}
