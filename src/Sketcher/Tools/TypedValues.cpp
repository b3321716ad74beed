#include "Tools/TypedValues.h"

#include "Dimension/TemporaryDimensionMgr.h"
#include "Journal/JournalManager.h"

#include <algorithm>
#include <iterator>
#include <utility>

using namespace vesk;

std::optional<double> TypedValues::Get(InputState field) const
{
    for (const Value& value : m_values)
    {
        if (value.record.field == field)
            return value.record.value;
    }
    return std::nullopt;
}

void TypedValues::Take(const ValueRecord& value)
{
    Drop(value.field);
    m_values.push_back({value, false});
    TemporaryDimensionMgr::GetInstance()->SetLocked(value.field, true, value.value);
}

void TypedValues::Record()
{
    for (Value& value : m_values)
    {
        if (!value.isRecorded)
            JournalManager::GetInstance().Add(value.record);
        value.isRecorded = true;
    }
}

void TypedValues::Drop(InputState field)
{
    const auto gone = std::remove_if(m_values.begin(), m_values.end(), [field](const Value& value) {
        return value.record.field == field;
    });
    m_values.erase(gone, m_values.end());
    TemporaryDimensionMgr::GetInstance()->SetLocked(field, false);
}

TypedValues::Trial::Trial(TypedValues& values, InputState field, double value)
    : m_values(values), m_before(values.m_values)
{
    const auto isOther = [field](const Value& other) { return other.record.field != field; };
    std::vector<Value> tried;
    std::copy_if(m_before.begin(), m_before.end(), std::back_inserter(tried), isOther);
    tried.push_back({{field, {}, value}, false});
    m_values.m_values = std::move(tried);
}

TypedValues::Trial::~Trial()
{
    m_values.m_values = std::move(m_before);
}

void TypedValues::Clear()
{
    while (!m_values.empty())
        Drop(m_values.back().record.field);
}
