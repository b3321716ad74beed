#pragma once

#include "Host/Dimension/DrawnNodes.h"
#include "Host/Dimension/GeneratorKinds.h"

#include <Eigen/Geometry>

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <complex>
#include <initializer_list>
#include <limits>
#include <random>
#include <vector>

namespace vesk
{

/// Points in a plane are wide complex numbers here, to be independent of the generators'
/// computation.
using Wide = long double;
using Complex = std::complex<Wide>;

constexpr Wide DegreesPerRadian = 180 / 3.14159265358979323846264338327950288L;

/// The unit in the last place of the largest coordinate of the first `count` points.
inline Wide LastPlaceOf(const GeneratorPoints& points, std::size_t count)
{
    double largest = 0.0;
    for (std::size_t i = 0; i < count; ++i)
        largest = std::max(largest, points[i].cwiseAbs().maxCoeff());
    return std::nextafter(largest, std::numeric_limits<double>::infinity()) - largest;
}

/// A random plane in space, a random scale and random points in it, and checks of how dimensions in
/// it are drawn.
class RandomPlane
{
public:
    explicit RandomPlane(unsigned seed) : m_seed(seed), m_engine(seed) { PrintSeed(); }

    /// Chooses another plane and another scale.
    void Next()
    {
        const double scale = std::pow(10.0, Between(-3, 9));
        const double pixel = scale * std::pow(10.0, Between(-6, 0));
        m_scale = scale;
        m_pixel = pixel;
        const Eigen::Vector3d x = MakeVector();
        const Eigen::Vector3d y = MakeVector();
        m_plane = Coordinate3d(scale * MakeVector(), x, y);
        m_x = m_plane.GetX().cast<Wide>().normalized();
        const WideVector z = m_plane.GetZ().cast<Wide>();
        m_y = z.cross(m_x).normalized();
    }

    double Between(double least, double most)
    {
        return std::uniform_real_distribution<double>(least, most)(m_engine);
    }

    Wide MakeAngle() { return Between(-3.14, 3.14); }
    Complex MakePoint() { return m_scale * Complex(Between(-1, 1), Between(-1, 1)); }

    /// The offset of another point, near or far.
    Complex MakeOffset()
    {
        return std::polar(m_scale * std::pow(Wide(10), Wide(Between(-5, 0))), MakeAngle());
    }

    GeneratorPoints ToWorld(std::initializer_list<Complex> points) const
    {
        GeneratorPoints world;
        world.fill(Vector3d::Zero());
        std::transform(points.begin(), points.end(), world.begin(),
                       [this](const Complex& point) { return ToWorld(point); });
        return world;
    }

    GeneratorInput MakeInput() const
    {
        GeneratorInput input;
        input.coordinate = m_plane;
        input.pixel = static_cast<double>(m_pixel);
        return input;
    }

    /// Whether a straight dimension is beside `along`, on the side that a unit vector points to.
    bool IsStraight(const IGraphicsNodeGroup& group, const Complex& start, const Complex& along,
                    const Complex& outwards) const
    {
        const Wide length = std::abs(along) / m_pixel;
        const Wide covered =
            2 * std::min(48 / std::abs(outwards.imag()), 13 / std::abs(outwards.real()));
        const Wide clearance = 48 * std::abs(outwards.real()) + 13 * std::abs(outwards.imag()) + 12;
        const Wide offset = length < covered ? 28 : std::max(Wide(28), clearance);
        const Complex gap = start + 4 * m_pixel * outwards;
        const Complex line = start + offset * m_pixel * outwards;
        const Complex reach = start + (offset + 6) * m_pixel * outwards;
        const Wide arrow = std::min(Wide(8), length / 3) * m_pixel;
        const Complex direction = along / std::abs(along);
        return HasLines(group,
                        {{gap, reach}, {gap + along, reach + along}, {line, line + along}}) &&
               HasArrow(group, line, -direction, arrow) &&
               HasArrow(group, line + along, direction, arrow) &&
               DrawnNodes(group).lines.size() == 7;
    }

    /// Whether an angle is drawn about a centre, with arrows at its end or at both.
    bool IsTurn(const IGraphicsNodeGroup& group, const Complex& centre, const Complex& from,
                Wide turn, int arrows) const
    {
        const Wide radius = std::min(60 * m_pixel, Wide(0.6L) * std::abs(from));
        const Wide reach = arrows == 1 ? radius + 12 * m_pixel : 0;
        const Wide side = std::max(std::abs(from), reach);
        const Complex direction = from / std::abs(from);
        const Complex end = direction * std::polar(Wide(1), turn);
        const Wide arrow = std::min(8 * m_pixel, radius * std::abs(turn) / 3);
        const Complex sense(0, turn > 0 ? 1 : -1);
        return HasLines(group,
                        {{centre, centre + side * direction}, {centre, centre + side * end}}) &&
               HasArc(group, centre, radius * direction, turn) &&
               HasArrow(group, centre + radius * end, sense * end, arrow) &&
               (arrows == 1 ||
                HasArrow(group, centre + radius * direction, -sense * direction, arrow)) &&
               DrawnNodes(group).lines.size() == 2 + 2 * static_cast<std::size_t>(arrows);
    }

    /// Whether an arrow runs from a centre to a point given relative to it.
    bool IsLeader(const IGraphicsNodeGroup& group, const Complex& centre, const Complex& tip) const
    {
        const Wide radius = std::abs(tip);
        return HasLines(group, {{centre, centre + tip}}) &&
               HasArrow(group, centre + tip, tip / radius, std::min(8 * m_pixel, radius / 3)) &&
               DrawnNodes(group).lines.size() == 3;
    }

private:
    using WideVector = Eigen::Matrix<Wide, 3, 1>;

    struct Segment
    {
        Complex start;
        Complex end;
    };

    void PrintSeed() const { qInfo("seed %u", m_seed); }

    Vector3d MakeVector() { return {Between(-1, 1), Between(-1, 1), Between(-1, 1)}; }

    Vector3d ToWorld(const Complex& point) const
    {
        const WideVector world =
            m_plane.GetOrigin().cast<Wide>() + point.real() * m_x + point.imag() * m_y;
        return world.cast<double>();
    }

    /// To within a thousandth of a pixel plus the rounding of coordinates of this size.
    bool IsAt(const Vector3d& world, const Complex& point) const
    {
        return (world - ToWorld(point)).norm() <= 1e-3L * m_pixel + 1e-14L * m_scale;
    }

    bool HasLines(const IGraphicsNodeGroup& group, const std::vector<Segment>& segments) const
    {
        const DrawnNodes drawn(group);
        return std::all_of(segments.begin(), segments.end(), [&](const Segment& segment) {
            return std::any_of(drawn.lines.begin(), drawn.lines.end(),
                               [&](const IGraphicsLine* pLine) {
                                   return IsAt(pLine->GetStart(), segment.start) &&
                                          IsAt(pLine->GetEnd(), segment.end);
                               });
        });
    }

    bool HasArrow(const IGraphicsNodeGroup& group, const Complex& tip, const Complex& direction,
                  Wide size) const
    {
        const Complex left = size * direction * Complex(-1, Wide(0.35L));
        const Complex right = size * direction * Complex(-1, Wide(-0.35L));
        return HasLines(group, {{tip, tip + left}, {tip, tip + right}});
    }

    bool HasArc(const IGraphicsNodeGroup& group, const Complex& centre, const Complex& from,
                Wide turn) const
    {
        const DrawnNodes drawn(group);
        if (drawn.arcs.size() != 1)
            return false;
        const IGraphicsArc& arc = *drawn.arcs.front();
        const auto at = [&arc](double angle) -> Vector3d {
            return arc.GetCentre() + arc.GetRadius() * (std::cos(angle) * arc.GetXAxis() +
                                                        std::sin(angle) * arc.GetYAxis());
        };
        return IsAt(at(0.0), centre + from) &&
               IsAt(at(arc.GetSweep() / 2), centre + from * std::polar(Wide(1), turn / 2)) &&
               IsAt(at(arc.GetSweep()), centre + from * std::polar(Wide(1), turn));
    }

    unsigned m_seed;
    std::mt19937 m_engine;
    Wide m_scale = 1;
    Wide m_pixel = 1;
    Coordinate3d m_plane;
    WideVector m_x;
    WideVector m_y;
};

}
