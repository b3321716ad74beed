#pragma once

#include "Dimension/ITemporaryDimensionContext.h"
#include "Foundation/HostExport.h"
#include "Geometry/Coordinate3d.h"
#include "Geometry/Vector3d.h"

namespace vesk
{

/// The circle through three points, with its radius: an arc from the first point to the second
/// through the third, the cursor.
///
/// Radii from MIN_MODEL_SIZE to MAX_MODEL_SIZE millimetres may be typed.
class VESK_HOST_API RadiusTemporaryDimensionContext final : public ITemporaryDimensionContext
{
public:
    /// Three world points in the xy plane of `coordinate`. If they are on one line, no radius is
    /// drawn.
    RadiusTemporaryDimensionContext(const Coordinate3d& coordinate, const Vector3d& first,
                                    const Vector3d& second, const Vector3d& third);

    Intervald GetFirstValueRange() const override { return m_radiusRange; }

    /// Not used: a radius is all that can be typed.
    Intervald GetSecondValueRange() const override;

    /// The frame in whose xy plane the circle lies.
    const Coordinate3d& GetCoordinate() const { return m_coordinate; }

    /// Where the arc begins.
    const Vector3d& GetFirstPoint() const { return m_first; }

    /// Where the arc ends.
    const Vector3d& GetSecondPoint() const { return m_second; }

    /// A point of the arc between them: the cursor.
    const Vector3d& GetThirdPoint() const { return m_third; }

    /// Whether the lines from the first point to the others and the central angle are drawn too; a
    /// radius is then delivered as a kind of its own. Initially off.
    bool IsCentralAngleShown() const { return m_isCentralAngleShown; }

    /// Sets whether they are drawn.
    void SetCentralAngleShown(bool isShown) { m_isCentralAngleShown = isShown; }

    /// Narrows the range of the radius, in the display unit.
    void SetFirstValueRange(const Intervald& range) { m_radiusRange = range; }

private:
    Coordinate3d m_coordinate;
    Vector3d m_first;
    Vector3d m_second;
    Vector3d m_third;
    bool m_isCentralAngleShown = false;
    Intervald m_radiusRange;
};

}
