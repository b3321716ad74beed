#pragma once

#include "Foundation/HostExport.h"

#include <map>
#include <string>
#include <variant>

namespace vesk
{

/// One parameter of a command: a bool, an integer, a real number or a text.
class VESK_HOST_API CommandParameterValue
{
public:
    /// A truth value.
    explicit CommandParameterValue(bool value);

    /// An integer.
    explicit CommandParameterValue(int value);

    /// A real number. One that is not finite cannot be journaled.
    explicit CommandParameterValue(double value);

    /// A text.
    explicit CommandParameterValue(std::wstring value);

    /// One of the four kinds.
    using Variant = std::variant<bool, int, double, std::wstring>;

    /// The value, of the kind with which it was created.
    const Variant& Get() const { return m_value; }

    /// True if kind and value are equal: an integer never equals a real number.
    bool operator==(const CommandParameterValue& other) const { return m_value == other.m_value; }

private:
    Variant m_value;
};

/// The named parameters of a command.
class VESK_HOST_API CommandParameters
{
public:
    /// Sets a parameter, replacing one of the same name.
    void Add(const std::wstring& name, const CommandParameterValue& value);

    /// The parameter of that name, null if there is none.
    const CommandParameterValue* Find(const std::wstring& name) const;

    /// All parameters by name.
    const std::map<std::wstring, CommandParameterValue>& GetAll() const { return m_values; }

    /// True if there are none.
    bool IsEmpty() const { return m_values.empty(); }

    /// True if both have the same names with equal values.
    bool operator==(const CommandParameters& other) const { return m_values == other.m_values; }

private:
    std::map<std::wstring, CommandParameterValue> m_values;
};

}
