#pragma once

#include "Foundation/HostExport.h"
#include "Geometry/Vector3d.h"

namespace vesk
{

/// A right-handed coordinate system: an origin and three orthogonal unit axes. Its xy plane is the
/// drawing plane.
class VESK_HOST_API Coordinate3d
{
public:
    /// The world coordinate system.
    Coordinate3d();

    /// The coordinate system at `origin` whose x axis points along `xDirection` and whose xy plane
    /// contains `yDirection`. Parallel or zero directions give the world axes at `origin`.
    Coordinate3d(const Vector3d& origin, const Vector3d& xDirection, const Vector3d& yDirection);

    /// The origin, in world coordinates.
    const Vector3d& GetOrigin() const { return m_origin; }

    /// The unit vector along x.
    const Vector3d& GetX() const { return m_x; }

    /// The unit vector along y.
    const Vector3d& GetY() const { return m_y; }

    /// The unit vector along z, perpendicular to the drawing plane.
    const Vector3d& GetZ() const { return m_z; }

    /// The world point that has these coordinates in this system.
    Vector3d ToWorld(const Vector3d& local) const;

private:
    Vector3d m_origin;
    Vector3d m_x;
    Vector3d m_y;
    Vector3d m_z;
};

}
