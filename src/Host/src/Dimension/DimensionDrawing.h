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

/// Draws one provisional dimension in the plane of a coordinate system, seen from a point of it.
class DimensionDrawing
{
public:
    /// `pixel` is the world width of one pixel; what is none counts as 1. The role comes from the
    /// field's state.
    DimensionDrawing(const Vector3d& origin, const Coordinate3d& coordinate, double pixel,
                     InputState field, InputState state);

    /// What to show of the field: the value that is locked, in model units, else the measured one.
    double GetValue(double measured) const { return m_lockedValue.value_or(measured); }

    /// Whether all are points that some model could hold: numbers with which can be calculated.
    static bool AreDrawable(std::initializer_list<Vector3d> points);

    /// World point to the plane, and back.
    PlaneVector ToPlane(const Vector3d& world) const;
    Vector3d ToWorld(const PlaneVector& point) const;

    /// A length of the model in pixels.
    double ToPixels(double length) const { return length / m_pixel; }

    void AddLine(const PlaneVector& start, const PlaneVector& end);

    /// Adds an arc about the origin, from a unit vector by `sweep` radians.
    void AddArc(const PlaneVector& from, double radius, double sweep);

    /// Adds an arrow head that points along a unit vector, smaller than others on a short line or
    /// arc, whose length is `length`.
    void AddArrow(const PlaneVector& tip, const PlaneVector& direction, double length);

    /// Adds the text, unless it is being typed: the editor then stands in its place.
    void AddText(const Vector3d& position, const std::wstring& text);

    /// What was drawn, given to the caller.
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
