#pragma once

#include "Dimension/InputState.h"
#include "Dimension/PlaneVector.h"
#include "Foundation/OwnerPtr.h"
#include "Geometry/Coordinate3d.h"
#include "Geometry/Vector3d.h"
#include "Graphics/IGraphicsNode.h"

#include <initializer_list>
#include <optional>
#include <string>

namespace vesk
{

/// Draws one provisional dimension in the plane of a coordinate system, relative to an origin.
class DimensionDrawing
{
public:
    /// `pixel` is the world width of one pixel; an invalid width counts as 1. The graphics role
    /// depends on whether the field is being typed or locked.
    DimensionDrawing(const Vector3d& origin, const Coordinate3d& coordinate, double pixel,
                     InputState field, InputState state);

    /// The value to show: the locked one, in model units, otherwise the measured one.
    double GetValue(double measured) const { return m_lockedValue.value_or(measured); }

    /// Whether all points can be drawn: their coordinates are finite and small enough to compute
    /// with.
    static bool AreDrawable(std::initializer_list<Vector3d> points);

    /// Converts a world point to the plane, and back.
    PlaneVector ToPlane(const Vector3d& world) const;
    Vector3d ToWorld(const PlaneVector& point) const;

    /// A model length in pixels.
    double ToPixels(double length) const { return length / m_pixel; }

    void AddLine(const PlaneVector& start, const PlaneVector& end);

    /// Adds an arc about the origin that starts at a unit vector and sweeps `sweep` radians.
    void AddArc(const PlaneVector& from, double radius, double sweep);

    /// Adds an arrow head that points along a unit vector; it is smaller if the line or arc, of
    /// length `length`, is short.
    void AddArrow(const PlaneVector& tip, const PlaneVector& direction, double length);

    /// Adds the text, unless it is being typed: the editor is then shown instead.
    void AddText(const Vector3d& position, const std::wstring& text);

    /// Transfers the graphics to the caller.
    OwnerPtr<IGraphicsNodeGroup> Take();

private:
    Vector3d m_origin;
    Coordinate3d m_coordinate;
    double m_pixel;
    GraphicsRole m_role;
    std::optional<double> m_lockedValue;
    OwnerPtr<IGraphicsNodeGroup> m_opGroup;
};

}
