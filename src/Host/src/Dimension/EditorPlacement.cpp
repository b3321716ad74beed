#include "Dimension/EditorPlacement.h"

#include "Dimension/TemporaryDimensionStyle.h"
#include "View/IModelView.h"
#include "View/IUiDocumentViewManager.h"
#include "View/IUiView.h"

#include <Eigen/LU>

#include <algorithm>
#include <cmath>

namespace vesk
{

namespace
{

/// Pixels between the editor and the view's edge, the cursor and another text. Each holds one pixel
/// by which the editor may be off, since it stands on whole pixels.
constexpr double s_viewMargin = 3.0;
constexpr double s_cursorMargin = 10.0;
constexpr double s_textMargin = 4.0;

const IModelView* FindModelView()
{
    const IUiDocumentViewManager* pManager = IUiDocumentViewManager::Get();
    const IUiView* pView = pManager != nullptr ? pManager->GetCurrentUiView() : nullptr;
    return pView != nullptr ? pView->GetModelView() : nullptr;
}

/// Narrows the part of a segment to where one of its coordinates is from 0 to `size`.
void Clip(double start, double along, double size, double& from, double& to)
{
    if (along == 0.0)
        return;
    const double atZero = -start / along;
    const double atSize = (size - start) / along;
    from = std::max(from, std::min(atZero, atSize));
    to = std::min(to, std::max(atZero, atSize));
}

}

EditorPlacement::EditorPlacement(const Coordinate3d& coordinate, const Vector3d& cursor,
                                 const TemporaryDimensionStyle& style)
    : m_coordinate(coordinate), m_origin(cursor), m_pModelView(FindModelView()),
      m_editorReach(style.GetEditorWidth() / 2.0, style.GetEditorHeight() / 2.0)
{
    if (m_pModelView == nullptr)
        return;
    const Pixel size(m_pModelView->GetWidth(), m_pModelView->GetHeight());
    const Pixel border = (m_editorReach + Pixel::Constant(s_viewMargin)).cwiseMin(size / 2);
    m_least = border;
    m_most = size - border;
    m_obstacles.push_back({ToPixel(cursor), m_editorReach + Pixel::Constant(s_cursorMargin)});
}

void EditorPlacement::AvoidText(const Vector3d& position)
{
    if (m_pModelView != nullptr)
        m_obstacles.push_back(
            {ToPixel(position), 2 * m_editorReach + Pixel::Constant(s_textMargin)});
}

bool EditorPlacement::Fits(const Vector3d& position) const
{
    return m_pModelView == nullptr || IsFree(ToPixel(position), m_obstacles);
}

Vector3d EditorPlacement::GetVisibleMiddle(const Vector3d& start, const Vector3d& end) const
{
    double from = 0.0;
    double to = 1.0;
    if (m_pModelView != nullptr)
    {
        const Pixel first = ToPixel(start);
        const Pixel along = ToPixel(end) - first;
        Clip(first.x(), along.x(), m_pModelView->GetWidth(), from, to);
        Clip(first.y(), along.y(), m_pModelView->GetHeight(), from, to);
    }
    const double middle = from < to ? (from + to) / 2 : 0.5;
    return start + middle * (end - start);
}

Vector3d EditorPlacement::Choose(const std::vector<Vector3d>& places) const
{
    const auto found = std::find_if(places.begin(), places.end(),
                                    [this](const Vector3d& place) { return Fits(place); });
    if (found != places.end())
        return *found;
    const Pixel clamped = Clamp(ToPixel(places.front()));
    if (const std::optional<Pixel> nearest = FindNearest(clamped, m_obstacles))
        return ToWorld(*nearest);
    // No room for both texts: the cursor is what must stay free.
    const std::optional<Pixel> nearest = FindNearest(clamped, {m_obstacles.front()});
    return ToWorld(nearest.value_or(clamped));
}

bool EditorPlacement::Obstacle::Holds(const Pixel& pixel) const
{
    return ((pixel - centre).cwiseAbs().array() < reach.array()).all();
}

EditorPlacement::Pixel EditorPlacement::ToPixel(const Vector3d& world) const
{
    Pixel pixel;
    double depth = 0.0;
    m_pModelView->WorldToScreen(world, pixel.x(), pixel.y(), depth);
    return pixel;
}

/// The point of the plane that the view shows at `pixel`; in a plane seen from its edge, near it.
Vector3d EditorPlacement::ToWorld(const Pixel& pixel) const
{
    const Vector3d& normal = m_coordinate.GetZ();
    const double step = m_pModelView->GetWorldPerPixel();
    Vector3d world = m_pModelView->ScreenToWorld(pixel.x(), pixel.y());
    world += (m_origin - world).dot(normal) * normal;

    Eigen::Matrix2d pixelsPerStep;
    const Pixel at = ToPixel(world);
    pixelsPerStep.col(0) = ToPixel(world + step * m_coordinate.GetX()) - at;
    pixelsPerStep.col(1) = ToPixel(world + step * m_coordinate.GetY()) - at;
    constexpr double EdgeOn = 1e-3;
    if (!(std::abs(pixelsPerStep.determinant()) > EdgeOn))
        return world;
    const Pixel steps = pixelsPerStep.inverse() * (pixel - at);
    return world + step * (steps.x() * m_coordinate.GetX() + steps.y() * m_coordinate.GetY());
}

bool EditorPlacement::IsInside(const Pixel& pixel) const
{
    return (pixel.array() >= m_least.array()).all() && (pixel.array() <= m_most.array()).all();
}

bool EditorPlacement::IsFree(const Pixel& pixel, const std::vector<Obstacle>& obstacles) const
{
    return IsInside(pixel) &&
           std::none_of(obstacles.begin(), obstacles.end(),
                        [&pixel](const Obstacle& obstacle) { return obstacle.Holds(pixel); });
}

/// The pixel inside the view that is nearest; the middle for what is no number.
EditorPlacement::Pixel EditorPlacement::Clamp(const Pixel& pixel) const
{
    const Pixel middle = (m_least + m_most) / 2;
    const Pixel number(std::isnan(pixel.x()) ? middle.x() : pixel.x(),
                       std::isnan(pixel.y()) ? middle.y() : pixel.y());
    return number.cwiseMax(m_least).cwiseMin(m_most);
}

/// The free pixel nearest to one inside the view: it is there, or on the edges of obstacles.
std::optional<EditorPlacement::Pixel>
EditorPlacement::FindNearest(const Pixel& pixel, const std::vector<Obstacle>& obstacles) const
{
    std::vector<double> xs{pixel.x()};
    std::vector<double> ys{pixel.y()};
    for (const Obstacle& obstacle : obstacles)
    {
        xs.insert(xs.end(), {obstacle.centre.x() - obstacle.reach.x(),
                             obstacle.centre.x() + obstacle.reach.x()});
        ys.insert(ys.end(), {obstacle.centre.y() - obstacle.reach.y(),
                             obstacle.centre.y() + obstacle.reach.y()});
    }
    std::optional<Pixel> nearest;
    for (const double x : xs)
    {
        for (const double y : ys)
        {
            const Pixel candidate(x, y);
            const bool isNearer =
                !nearest || (candidate - pixel).squaredNorm() < (*nearest - pixel).squaredNorm();
            if (isNearer && IsFree(candidate, obstacles))
                nearest = candidate;
        }
    }
    return nearest;
}

}
