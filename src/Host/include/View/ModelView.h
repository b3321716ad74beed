#pragma once

#include "Foundation/HostExport.h"
#include "View/IModelView.h"

namespace vesk
{

/// Looks straight down on the world's xy plane, y up.
///
/// What is no finite number, and a size, scale or factor that is not positive, changes nothing.
class VESK_HOST_API ModelView final : public IModelView
{
public:
    void WorldToScreen(const Vector3d& world, double& x, double& y, double& depth) const override;
    Vector3d ScreenToWorld(double x, double y) const override;
    double GetWorldPerPixel() const override;
    int GetWidth() const override;
    int GetHeight() const override;

    /// The point of the drawing plane in the middle of the view.
    const Vector3d& GetCentre() const;

    /// Sets the size in pixels; centre and scale stay.
    void SetSize(int width, int height);

    /// Moves the middle of the view over a world point, whose height does not matter.
    void SetCentre(const Vector3d& centre);

    /// Sets the scale, kept between 1e-9 and 1e9; the centre stays.
    void SetWorldPerPixel(double worldPerPixel);

    /// Magnifies by `factor` so that the world point under (x, y) stays there.
    void ZoomAbout(double x, double y, double factor);

    /// Moves the picture by a number of pixels.
    void Pan(double dx, double dy);

    /// Shows the box between two corners and leaves at least a tenth of the view free on each side.
    /// A box that is a point is centred only.
    void Fit(const Vector3d& corner, const Vector3d& oppositeCorner);

private:
    Vector3d m_centre = Vector3d::Zero();
    double m_worldPerPixel = 1.0;
    int m_width = 1;
    int m_height = 1;
};

}
