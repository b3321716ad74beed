#pragma once

#include "Foundation/HostExport.h"
#include "Geometry/Vector3d.h"

namespace vesk
{

/// A right-handed frame: an origin and three unit axes at right angles. Drawing happens in its xy
/// plane.
class VESK_HOST_API Coordinate3d
{
public:
    /// The world frame.
    Coordinate3d();

    /// The frame at `origin` whose x axis points along `xDirection` and whose plane holds
    /// `yDirection`. Parallel or zero directions give the world axes at `origin`.
    Coordinate3d(const Vector3d& origin, const Vector3d& xDirection, const Vector3d& yDirection);

    const Vector3d& GetOrigin() const { return m_origin; }
    const Vector3d& GetX() const { return m_x; }
    const Vector3d& GetY() const { return m_y; }
    const Vector3d& GetZ() const { return m_z; }

    /// World point to coordinates of this frame, and back.
    Vector3d ToLocal(const Vector3d& world) const;
    Vector3d ToWorld(const Vector3d& local) const;

private:
    Vector3d m_origin;
    Vector3d m_x;
    Vector3d m_y;
    Vector3d m_z;
};

}
