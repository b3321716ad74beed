#pragma once

#include "Validation/ValidatorBase.h"

#include <cmath>
#include <limits>
#include <string>

namespace vesk
{

/// Checks whether a text is a number within bounds. `T` is int or double.
///
/// By default every number is accepted. The whole text must be a number, in the format of the C
/// locale whatever the current one is; a leading plus sign is allowed, a blank is not. NaN,
/// infinity and values that `T` cannot represent are outside every range.
template <class T>
class NumberValidator : public ValidatorBase
{
public:
    NumberValidator() = default;

    /// A range from `bottom` to `top`, each with the bound itself or without.
    NumberValidator(T bottom, T top, std::wstring tip, bool isBottomInclusive, bool isTopInclusive,
                    int decimals)
        : ValidatorBase(std::move(tip)), m_bottom(bottom), m_top(top),
          m_isBottomInclusive(isBottomInclusive), m_isTopInclusive(isTopInclusive),
          m_decimals(decimals)
    {}

    bool ValidateInput(const std::wstring& text) const override;

    /// The tip given at construction; if it is empty, one that states the range.
    std::wstring GetTip() const override;

    /// True within the bounds.
    bool ValidateValue(T value) const
    {
        const bool isAbove = m_isBottomInclusive ? value >= m_bottom : value > m_bottom;
        const bool isBelow = m_isTopInclusive ? value <= m_top : value < m_top;
        return std::isfinite(value) && isAbove && isBelow;
    }

    /// Sets the lower bound.
    void SetBottom(T bottom, bool isInclusive)
    {
        m_bottom = bottom;
        m_isBottomInclusive = isInclusive;
    }

    /// Sets the upper bound.
    void SetTop(T top, bool isInclusive)
    {
        m_top = top;
        m_isTopInclusive = isInclusive;
    }

    /// The number of decimals with which the value is shown; a typed number is never rejected or
    /// rounded for its decimals.
    void SetDecimals(int decimals) { m_decimals = decimals; }

    /// The number of decimals with which the value is shown.
    int GetDecimals() const { return m_decimals; }

    /// The lower bound.
    T GetBottom() const { return m_bottom; }

    /// The upper bound.
    T GetTop() const { return m_top; }

private:
    T m_bottom = std::numeric_limits<T>::lowest();
    T m_top = std::numeric_limits<T>::max();
    bool m_isBottomInclusive = true;
    bool m_isTopInclusive = true;
    int m_decimals = 3;
};

extern template class VESK_HOST_API NumberValidator<int>;
extern template class VESK_HOST_API NumberValidator<double>;

}
