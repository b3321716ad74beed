#include "View/ModelView.h"

#include <algorithm>
#include <cmath>

namespace vesk
{

namespace
{

constexpr double MinWorldPerPixel = 1e-9;
constexpr double MaxWorldPerPixel = 1e9;

/// The fraction of the view that a fitted box fills: a tenth is left free on each side.
constexpr double FittedPart = 0.8;

bool IsPositive(double value)
{
    return value > 0 && std::isfinite(value);
}

}

void ModelView::WorldToScreen(const Vector3d& world, double& x, double& y, double& depth) const
{
    x = m_width / 2.0 + (world.x() - m_centre.x()) / m_worldPerPixel;
    y = m_height / 2.0 - (world.y() - m_centre.y()) / m_worldPerPixel;
    depth = world.z();
}

Vector3d ModelView::ScreenToWorld(double x, double y) const
{
    return {m_centre.x() + (x - m_width / 2.0) * m_worldPerPixel,
            m_centre.y() - (y - m_height / 2.0) * m_worldPerPixel, 0.0};
}

double ModelView::GetWorldPerPixel() const
{
    return m_worldPerPixel;
}

int ModelView::GetWidth() const
{
    return m_width;
}

int ModelView::GetHeight() const
{
    return m_height;
}

const Vector3d& ModelView::GetCentre() const
{
    return m_centre;
}

void ModelView::SetSize(int width, int height)
{
    if (width <= 0 || height <= 0)
        return;
    m_width = width;
    m_height = height;
}

void ModelView::SetCentre(const Vector3d& centre)
{
    if (centre.allFinite())
        m_centre = Vector3d(centre.x(), centre.y(), 0.0);
}

void ModelView::SetWorldPerPixel(double worldPerPixel)
{
    if (IsPositive(worldPerPixel))
        m_worldPerPixel = std::clamp(worldPerPixel, MinWorldPerPixel, MaxWorldPerPixel);
}

void ModelView::ZoomAbout(double x, double y, double factor)
{
    if (!IsPositive(factor))
        return;
    ModelView zoomed = *this;
    // An infinite quotient is clamped too.
    zoomed.m_worldPerPixel =
        std::clamp(m_worldPerPixel / factor, MinWorldPerPixel, MaxWorldPerPixel);
    zoomed.m_centre += ScreenToWorld(x, y) - zoomed.ScreenToWorld(x, y);
    if (zoomed.m_centre.allFinite())
        *this = zoomed;
}

void ModelView::Pan(double dx, double dy)
{
    SetCentre(m_centre + Vector3d(-dx, dy, 0.0) * m_worldPerPixel);
}

void ModelView::Fit(const Vector3d& corner, const Vector3d& oppositeCorner)
{
    const Vector3d size = (oppositeCorner - corner).cwiseAbs();
    if (!size.allFinite())
        return;
    SetCentre(corner + (oppositeCorner - corner) / 2);
    SetWorldPerPixel(std::max(size.x() / m_width, size.y() / m_height) / FittedPart);
}

}
