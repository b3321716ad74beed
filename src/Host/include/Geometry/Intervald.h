#pragma once

namespace vesk
{

/// A closed range of doubles.
class Intervald
{
public:
    constexpr Intervald(double min, double max) : m_min(min), m_max(max) {}

    constexpr double GetMin() const { return m_min; }
    constexpr double GetMax() const { return m_max; }

    /// True inside and on the bounds; false for NaN.
    constexpr bool Contains(double value) const { return value >= m_min && value <= m_max; }

private:
    double m_min;
    double m_max;
};

}
