#pragma once

#include "Dimension/ITemporaryDimensionContext.h"
#include "Foundation/HostExport.h"
#include "Geometry/Coordinate3d.h"
#include "Geometry/Vector3d.h"

namespace vesk
{

/// A rectangle with sides along the plane's axes, from a corner to the opposite one, the cursor,
/// with its width (along x) and its height.
///
/// Both from MIN_MODEL_SIZE to MAX_MODEL_SIZE millimetres may be typed.
class VESK_HOST_API RectangleTemporaryDimensionContext final : public ITemporaryDimensionContext
{
public:
    /// `opposite` is the cursor. Both are world points, in the xy plane of `coordinate`.
    RectangleTemporaryDimensionContext(const Coordinate3d& coordinate, const Vector3d& corner,
                                       const Vector3d& opposite);

    /// Of the width and of the height.
    Intervald GetFirstValueRange() const override { return m_sizeRange; }

    /// Not used: only lengths can be typed.
    Intervald GetSecondValueRange() const override;

    /// The frame along whose x and y axes the sides are.
    const Coordinate3d& GetCoordinate() const { return m_coordinate; }

    /// The corner where the rectangle begins.
    const Vector3d& GetFirstCorner() const { return m_corner; }

    /// The corner opposite to it now: the cursor.
    const Vector3d& GetOppositeCorner() const { return m_opposite; }

    /// Narrows the range of both, in the display unit.
    void SetFirstValueRange(const Intervald& range) { m_sizeRange = range; }

private:
    Coordinate3d m_coordinate;
    Vector3d m_corner;
    Vector3d m_opposite;
    Intervald m_sizeRange;
};

}
