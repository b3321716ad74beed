#pragma once

#include <utility>

namespace vesk
{

/// Gives a variable another value while it exists, and restores the former one afterwards.
template <class T>
class ScopedValue
{
public:
    ScopedValue(T& variable, T value)
        : m_variable(variable), m_former(std::exchange(variable, std::move(value)))
    {}
    ~ScopedValue() { m_variable = std::move(m_former); }
    ScopedValue(const ScopedValue&) = delete;
    ScopedValue& operator=(const ScopedValue&) = delete;

private:
    T& m_variable;
    T m_former;
};

}
