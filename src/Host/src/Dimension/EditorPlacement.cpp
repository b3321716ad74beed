#include "Dimension/EditorPlacement.h"

#include "Dimension/TemporaryDimensionStyle.h"
#include "View/IModelView.h"
#include "View/IUiDocumentViewManager.h"
#include "View/IUiView.h"
#include "View/UiViewUtility.h"

#include <Eigen/LU>

#include <algorithm>
#include <cmath>

namespace vesk
{

namespace
{

/// Pixels between the editor and the view's edge, the cursor and another text. Each includes one
/// pixel of rounding error, since the editor's position is in whole pixels.
constexpr double ViewMargin = 3.0;
constexpr double CursorMargin = 10.0;
constexpr double TextMargin = 4.0;

/// Pixels between the editor and the lines of its dimension.
constexpr double LineMargin = 12.0;

/// A position that touches an obstacle is outside it, however the obstacle's edge is rounded.
constexpr double Touch = 1e-6;

/// The fraction of a perpendicular length still visible, below which the plane counts as seen
/// edge-on.
constexpr double EdgeOnPart = 0.1;

const IModelView* FindModelView()
{
    const IUiView* pView = UiDocumentViewManager::FindCurrentView();
    return pView != nullptr ? pView->GetModelView() : nullptr;
}

/// Narrows the range of a segment to where one of its coordinates is between 0 and `size`.
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
    const Pixel border = (m_editorReach + Pixel::Constant(ViewMargin)).cwiseMin(size / 2);
    m_least = border;
    m_most = size - border;
    m_obstacles.push_back({ToPixel(cursor), m_editorReach + Pixel::Constant(CursorMargin)});
}

void EditorPlacement::AvoidText(const Vector3d& position)
{
    if (m_pModelView != nullptr)
        m_obstacles.push_back({ToPixel(position), 2 * m_editorReach + Pixel::Constant(TextMargin)});
}

bool EditorPlacement::Fits(const Vector3d& position) const
{
    return m_pModelView == nullptr || IsFree(ToPixel(position), m_obstacles);
}

double EditorPlacement::GetClearance(const PlaneVector& normal) const
{
    Pixel across = normal;
    double seen = 1.0;
    if (m_pModelView != nullptr)
    {
        const Eigen::Matrix2d pixelsPerStep = GetPixelsPerStep(m_origin);
        const Pixel side = TurnLeft(pixelsPerStep * TurnLeft(normal)).normalized();
        const double part = std::abs(side.dot(pixelsPerStep * normal));
        const bool isEdgeOn = !(part > EdgeOnPart);
        across = isEdgeOn ? across : side;
        seen = isEdgeOn ? seen : part;
    }
    return (m_editorReach.dot(across.cwiseAbs()) + LineMargin) / seen;
}

double EditorPlacement::GetCover(const PlaneVector& direction) const
{
    Pixel along = direction;
    if (m_pModelView != nullptr)
        along = GetPixelsPerStep(m_origin) * direction;
    return 2 * (m_editorReach.array() / along.array().abs()).minCoeff();
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
    // No room for both texts: only the cursor must stay uncovered.
    const std::optional<Pixel> nearest = FindNearest(clamped, {m_obstacles.front()});
    return ToWorld(nearest.value_or(clamped));
}

bool EditorPlacement::Obstacle::Holds(const Pixel& pixel) const
{
    return ((pixel - centre).cwiseAbs().array() < reach.array() - Touch).all();
}

EditorPlacement::Pixel EditorPlacement::ToPixel(const Vector3d& world) const
{
    return UiViewUtility::ToPixel(*m_pModelView, world);
}

/// The point of the plane that the view shows at `pixel`; near it if the plane is seen edge-on.
Vector3d EditorPlacement::ToWorld(const Pixel& pixel) const
{
    const Vector3d& normal = m_coordinate.GetZ();
    Vector3d world = m_pModelView->ScreenToWorld(pixel.x(), pixel.y());
    world += (m_origin - world).dot(normal) * normal;

    const Eigen::Matrix2d pixelsPerStep = GetPixelsPerStep(world);
    constexpr double EdgeOn = 1e-3;
    if (!(std::abs(pixelsPerStep.determinant()) > EdgeOn))
        return world;
    const double step = m_pModelView->GetWorldPerPixel();
    const Pixel steps = pixelsPerStep.inverse() * (pixel - ToPixel(world));
    return world + step * (steps.x() * m_coordinate.GetX() + steps.y() * m_coordinate.GetY());
}

/// How far a step of one pixel along the plane's x axis and along its y axis moves in the view.
Eigen::Matrix2d EditorPlacement::GetPixelsPerStep(const Vector3d& at) const
{
    // A longer step is used: far from the origin a short one is lost to rounding.
    constexpr double Steps = 128.0;
    const double span = Steps * m_pModelView->GetWorldPerPixel();
    Eigen::Matrix2d pixels;
    pixels.col(0) = ToPixel(at + span * m_coordinate.GetX()) - ToPixel(at);
    pixels.col(1) = ToPixel(at + span * m_coordinate.GetY()) - ToPixel(at);
    return pixels / Steps;
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

/// The nearest pixel inside the view; a NaN coordinate becomes the middle.
EditorPlacement::Pixel EditorPlacement::Clamp(const Pixel& pixel) const
{
    const Pixel middle = (m_least + m_most) / 2;
    const Pixel number(std::isnan(pixel.x()) ? middle.x() : pixel.x(),
                       std::isnan(pixel.y()) ? middle.y() : pixel.y());
    return number.cwiseMax(m_least).cwiseMin(m_most);
}

/// The free pixel nearest to one inside the view: that pixel itself, or one on the edges of
/// obstacles.
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
