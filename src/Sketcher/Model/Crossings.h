#pragma once

#include "Model/Shape.h"

#include <array>
#include <cstddef>
#include <variant>

/// A straight or a round piece of an outline.
using Piece = std::variant<LineShape, ArcShape>;

/// The points where two pieces meet, two at most.
class Crossings final
{
public:
    void Add(const vesk::Vector3d& point) { m_points[m_count++] = point; }

    const vesk::Vector3d* begin() const { return m_points.data(); }
    const vesk::Vector3d* end() const { return m_points.data() + m_count; }

private:
    std::array<vesk::Vector3d, 2> m_points;
    std::size_t m_count = 0;
};

/// Where two pieces in the drawing plane cross or touch, but for rounding; nothing where they run
/// along one another.
Crossings Cross(const Piece& first, const Piece& second);
