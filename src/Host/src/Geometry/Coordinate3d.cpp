#include "Geometry/Coordinate3d.h"

#include "Geometry/Constants.h"

#include <Eigen/Geometry>

namespace vesk
{

namespace
{

/// The unit vector in the given direction; zero if it has none.
Vector3d Normalize(const Vector3d& direction)
{
    const double length = direction.stableNorm();
    const bool hasDirection = length > 0 && direction.allFinite();
    return hasDirection ? direction.stableNormalized() : Vector3d(Vector3d::Zero());
}

}

Coordinate3d::Coordinate3d() : Coordinate3d(Vector3d::Zero(), Vector3d::UnitX(), Vector3d::UnitY())
{}

Coordinate3d::Coordinate3d(const Vector3d& origin, const Vector3d& xDirection,
                           const Vector3d& yDirection)
    : m_origin(origin), m_x(Vector3d::UnitX()), m_y(Vector3d::UnitY()), m_z(Vector3d::UnitZ())
{
    const Vector3d x = Normalize(xDirection);
    const Vector3d y = Normalize(yDirection);
    const Vector3d normal = x.cross(y);
    const double sine = normal.norm();
    if (!(sine > Constants::DOUBLE_EPS))
        return;
    m_x = x;
    m_z = normal / sine;
    m_y = m_z.cross(m_x).normalized();
}

Vector3d Coordinate3d::ToWorld(const Vector3d& local) const
{
    return m_origin + local.x() * m_x + local.y() * m_y + local.z() * m_z;
}

}
