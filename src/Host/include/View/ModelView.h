#pragma once

#include "Foundation/HostExport.h"
#include "View/IModelView.h"

namespace vesk
{

/// Looks straight down on the world's xy plane, with y up.
///
/// A value that is not finite, or a size, scale or factor that is not positive, changes nothing.
class VESK_HOST_API ModelView final : public IModelView
{
public:
    void WorldToScreen(const Vector3d& world, double& x, double& y, double& depth) const override;
    Vector3d ScreenToWorld(double x, double y) const override;
    double GetWorldPerPixel() const override;
    int GetWidth() const override;
    int GetHeight() const override;

    /// The point of the drawing plane at the centre of the view.
    const Vector3d& GetCentre() const;

    /// Sets the size in pixels; centre and scale are unchanged.
    void SetSize(int width, int height);

    /// Centres the view on a world point, whose height is ignored.
    void SetCentre(const Vector3d& centre);

    /// Sets the scale, clamped to 1e-9 to 1e9; the centre is unchanged.
    void SetWorldPerPixel(double worldPerPixel);

    /// Magnifies by `factor` so that the world point under (x, y) stays there.
    void ZoomAbout(double x, double y, double factor);

    /// Moves the picture by a number of pixels.
    void Pan(double dx, double dy);

    /// Shows the box between two corners and leaves at least a tenth of the view free on each side.
    /// If the box is a point, only centres the view on it.
    void Fit(const Vector3d& corner, const Vector3d& oppositeCorner);

private:
    Vector3d m_centre = Vector3d::Zero();
    double m_worldPerPixel = 1.0;
    int m_width = 1;
    int m_height = 1;
};

}
