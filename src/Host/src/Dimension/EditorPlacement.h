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

/// Finds the position of a dimension's text so that the editor shown there lies inside the current
/// view and does not cover the cursor.
class EditorPlacement
{
public:
    /// Positions lie in the coordinate system's plane through `cursor`, which must not be covered.
    EditorPlacement(const Coordinate3d& coordinate, const Vector3d& cursor,
                    const TemporaryDimensionStyle& style);

    /// Also keeps the editor clear of another text, if there is room for both.
    void AvoidText(const Vector3d& position);

    /// True if an editor at `position` is inside the view and covers nothing.
    bool Fits(const Vector3d& position) const;

    /// The distance that an editor's centre must keep from a line in the plane so as not to touch
    /// it, in pixels along `normal`, a unit vector perpendicular to the line.
    double GetClearance(const PlaneVector& normal) const;

    /// The length of a line in the plane that an editor centred on it covers, in pixels along
    /// `direction`, a unit vector.
    double GetCover(const PlaneVector& direction) const;

    /// The middle of the segment's visible part; of the whole segment if none of it is visible.
    Vector3d GetVisibleMiddle(const Vector3d& start, const Vector3d& end) const;

    /// The first of the positions that fits; otherwise the fitting position nearest to the first of
    /// them. Without a current view, the first.
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

    /// The bounds of the editor's centre.
    Pixel m_least = Pixel::Zero();
    Pixel m_most = Pixel::Zero();

    /// The cursor's comes first.
    std::vector<Obstacle> m_obstacles;
};

}
