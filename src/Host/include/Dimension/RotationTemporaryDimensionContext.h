#pragma once

#include "Dimension/ITemporaryDimensionContext.h"
#include "Foundation/HostExport.h"
#include "Geometry/Coordinate3d.h"
#include "Geometry/Vector3d.h"

namespace vesk
{

/// A rotation about a centre, from the direction of one point to that of another, the cursor;
/// counter-clockwise when positive.
///
/// Angles from -360 to 360 degrees may be typed, unless another range is set.
class VESK_HOST_API RotationTemporaryDimensionContext final : public ITemporaryDimensionContext
{
public:
    /// `to` is the cursor. All are world points, in the xy plane of `coordinate`.
    RotationTemporaryDimensionContext(const Coordinate3d& coordinate, const Vector3d& centre,
                                      const Vector3d& from, const Vector3d& to);

    /// Not used: the angle is all that can be typed.
    Intervald GetFirstValueRange() const override;

    /// Of the rotation, in degrees.
    Intervald GetSecondValueRange() const override { return m_angleRange; }

    /// The frame in whose xy plane the angle is measured.
    const Coordinate3d& GetCoordinate() const { return m_coordinate; }

    /// The centre of the rotation.
    const Vector3d& GetCentre() const { return m_centre; }

    /// The point in whose direction the rotation begins.
    const Vector3d& GetFromPoint() const { return m_from; }

    /// The point in whose direction it ends now: the cursor.
    const Vector3d& GetToPoint() const { return m_to; }

    /// Sets the range of the angle, in degrees.
    void SetSecondValueRange(const Intervald& range) { m_angleRange = range; }

private:
    Coordinate3d m_coordinate;
    Vector3d m_centre;
    Vector3d m_from;
    Vector3d m_to;
    Intervald m_angleRange;
};

}
