#pragma once

#include "Model/Shape.h"

#include <array>
#include <cstddef>
#include <variant>

/// A straight or round piece of an outline.
using Piece = std::variant<LineShape, ArcShape>;

/// The points where two pieces meet; at most two.
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

/// The points where two pieces in the drawing plane cross or touch, within rounding; none if they
/// overlap.
Crossings Cross(const Piece& first, const Piece& second);
