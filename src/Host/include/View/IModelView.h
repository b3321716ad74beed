#pragma once

#include "Foundation/HostExport.h"
#include "Geometry/Vector3d.h"

namespace vesk
{

/// How a view maps the world to its pixels. Pixels are the window system's logical pixels,
/// independent of the screen's density; x right, y down, (0, 0) at the view's top left corner.
class VESK_HOST_API IModelView
{
public:
    virtual ~IModelView() = default;

    /// The view position of a world point; `depth` is its height above the drawing plane.
    virtual void WorldToScreen(const Vector3d& world, double& x, double& y,
                               double& depth) const = 0;

    /// The point of the drawing plane under a view position.
    virtual Vector3d ScreenToWorld(double x, double y) const = 0;

    /// The world width of one pixel.
    virtual double GetWorldPerPixel() const = 0;

    /// The size of the view in pixels.
    virtual int GetWidth() const = 0;

    /// The height of the view in pixels.
    virtual int GetHeight() const = 0;
};

}
