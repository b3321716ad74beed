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
    explicit CommandParameterValue(bool value);
    explicit CommandParameterValue(int value);
    explicit CommandParameterValue(double value);
    explicit CommandParameterValue(std::wstring value);

    using Variant = std::variant<bool, int, double, std::wstring>;

    const Variant& Get() const { return m_value; }

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
    bool IsEmpty() const { return m_values.empty(); }

    bool operator==(const CommandParameters& other) const { return m_values == other.m_values; }

private:
    std::map<std::wstring, CommandParameterValue> m_values;
};

}
