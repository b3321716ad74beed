#pragma once

#include "Dimension/PlaneVector.h"
#include "Geometry/Coordinate3d.h"
#include "Geometry/Vector3d.h"

#include <Eigen/Core>

#include <optional>
#include <vector>

namespace vesk
{

class IModelView;
class TemporaryDimensionStyle;

/// Finds the place of a dimension's text: wherever it stands, the editor that takes its place is to
/// lie inside the current view and off the cursor.
class EditorPlacement
{
public:
    /// Places stand in the coordinate system's plane through `cursor`, which is to stay free.
    EditorPlacement(const Coordinate3d& coordinate, const Vector3d& cursor,
                    const TemporaryDimensionStyle& style);

    /// Keeps the editor off another text too, wherever there is room for both.
    void AvoidText(const Vector3d& position);

    /// True when an editor at `position` is inside the view and off everything.
    bool Fits(const Vector3d& position) const;

    /// How far an editor's centre must be from a line of the plane so that it does not touch it, in
    /// pixels along `normal`, a unit vector at right angles to the line.
    double GetClearance(const PlaneVector& normal) const;

    /// How much of a line of the plane an editor covers that stands on it, in pixels along
    /// `direction`, a unit vector.
    double GetCover(const PlaneVector& direction) const;

    /// The middle of the segment's visible part; of the whole segment when the view shows none.
    Vector3d GetVisibleMiddle(const Vector3d& start, const Vector3d& end) const;

    /// The first of the places that fits; else the place that fits nearest to the first of them.
    /// Without a current view, the first.
    Vector3d Choose(const std::vector<Vector3d>& places) const;

private:
    using Pixel = Eigen::Vector2d;

    /// A rectangle in which the editor's centre must not be.
    struct Obstacle
    {
        Pixel centre;
        Pixel reach; ///< Half its width and height.

        bool Holds(const Pixel& pixel) const;
    };

    Pixel ToPixel(const Vector3d& world) const;
    Vector3d ToWorld(const Pixel& pixel) const;
    Eigen::Matrix2d GetPixelsPerStep(const Vector3d& at) const;
    bool IsInside(const Pixel& pixel) const;
    bool IsFree(const Pixel& pixel, const std::vector<Obstacle>& obstacles) const;
    Pixel Clamp(const Pixel& pixel) const;
    std::optional<Pixel> FindNearest(const Pixel& pixel,
                                     const std::vector<Obstacle>& obstacles) const;

    Coordinate3d m_coordinate;
    Vector3d m_origin;
    const IModelView* m_pModelView;
    Pixel m_editorReach;

    /// Where the editor's centre may be.
    Pixel m_least = Pixel::Zero();
    Pixel m_most = Pixel::Zero();

    /// The cursor first.
    std::vector<Obstacle> m_obstacles;
};

}
