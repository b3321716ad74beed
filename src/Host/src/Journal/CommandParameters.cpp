#include "Journal/CommandParameters.h"

#include <utility>

namespace vesk
{

CommandParameterValue::CommandParameterValue(bool value) : m_value(value) {}

CommandParameterValue::CommandParameterValue(int value) : m_value(value) {}

CommandParameterValue::CommandParameterValue(double value) : m_value(value) {}

CommandParameterValue::CommandParameterValue(std::wstring value) : m_value(std::move(value)) {}

void CommandParameters::Add(const std::wstring& name, const CommandParameterValue& value)
{
    m_values.insert_or_assign(name, value);
}

const CommandParameterValue* CommandParameters::Find(const std::wstring& name) const
{
    const auto found = m_values.find(name);
    return found != m_values.end() ? &found->second : nullptr;
}

}
