#include "Dimension/DimensionDrawing.h"

#include "Dimension/ITemporaryDimensionContext.h"
#include "Dimension/ITemporaryDimensionHandler.h"
#include "Dimension/TemporaryDimensionMgr.h"

#include <algorithm>
#include <utility>

namespace vesk
{

namespace
{

GraphicsRole RoleOf(InputState field, InputState state)
{
    if (field == state)
        return GraphicsRole::ActiveDimension;
    const bool isLocked = TemporaryDimensionMgr::GetInstance()->IsLocked(field);
    return isLocked ? GraphicsRole::LockedDimension : GraphicsRole::Dimension;
}

/// Beyond every model and every view, but small enough that products of several stay finite.
constexpr double MostCoordinate = 1e30;
constexpr double LeastPixel = 1e-15;
constexpr double MostPixel = 1e15;

bool IsPixel(double width)
{
    return width >= LeastPixel && width <= MostPixel;
}

}

DimensionDrawing::DimensionDrawing(const Vector3d& origin, const Coordinate3d& coordinate,
                                   double pixel, InputState field, InputState state)
    : m_origin(origin), m_coordinate(coordinate), m_pixel(IsPixel(pixel) ? pixel : 1.0),
      m_role(RoleOf(field, state)),
      m_lockedValue(TemporaryDimensionMgr::GetInstance()->GetLockedValue(field)),
      m_opGroup(IGraphicsNodeGroup::Create())
{}

bool DimensionDrawing::AreDrawable(std::initializer_list<Vector3d> points)
{
    return std::all_of(points.begin(), points.end(), [](const Vector3d& point) {
        return (point.array().abs() <= MostCoordinate).all();
    });
}

PlaneVector DimensionDrawing::ToPlane(const Vector3d& world) const
{
    const Vector3d offset = world - m_origin;
    return PlaneVector(offset.dot(m_coordinate.GetX()), offset.dot(m_coordinate.GetY())) / m_pixel;
}

Vector3d DimensionDrawing::ToWorld(const PlaneVector& point) const
{
    return m_origin + m_pixel * (point.x() * m_coordinate.GetX() + point.y() * m_coordinate.GetY());
}

void DimensionDrawing::AddLine(const PlaneVector& start, const PlaneVector& end)
{
    m_opGroup->AddChild(IGraphicsLine::Create(ToWorld(start), ToWorld(end), m_role));
}

void DimensionDrawing::AddArc(const PlaneVector& from, double radius, double sweep)
{
    const Vector3d xAxis = from.x() * m_coordinate.GetX() + from.y() * m_coordinate.GetY();
    const Vector3d yAxis = from.x() * m_coordinate.GetY() - from.y() * m_coordinate.GetX();
    m_opGroup->AddChild(
        IGraphicsArc::Create(m_origin, xAxis, yAxis, radius * m_pixel, sweep, m_role));
}

void DimensionDrawing::AddArrow(const PlaneVector& tip, const PlaneVector& direction, double length)
{
    constexpr double Slenderness = 0.35;
    constexpr double Pixels = 8.0;
    constexpr double GreatestPart = 1.0 / 3;
    const double size = std::min(Pixels, GreatestPart * length);
    const PlaneVector back = tip - size * direction;
    const PlaneVector side = size * Slenderness * TurnLeft(direction);
    AddLine(tip, back + side);
    AddLine(tip, back - side);
}

void DimensionDrawing::AddText(const Vector3d& position, const std::wstring& text)
{
    if (m_role != GraphicsRole::ActiveDimension)
        m_opGroup->AddChild(IGraphicsText::Create(position, text, m_role));
}

OwnerPtr<IGraphicsNodeGroup> DimensionDrawing::Take()
{
    return std::move(m_opGroup);
}

}
