#pragma once

namespace vesk
{

/// A closed range of doubles.
class Intervald
{
public:
    /// From `min` to `max`, both included. If `min` is greater, nothing is inside.
    constexpr Intervald(double min, double max) : m_min(min), m_max(max) {}

    /// The lower bound.
    constexpr double GetMin() const { return m_min; }

    /// The upper bound.
    constexpr double GetMax() const { return m_max; }

    /// True inside and on the bounds; false for NaN.
    constexpr bool Contains(double value) const { return value >= m_min && value <= m_max; }

private:
    double m_min;
    double m_max;
};

}
