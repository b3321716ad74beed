#pragma once

#include "Journal/CommandParameters.h"

#include <string>
#include <variant>

/// The value of a parameter; null if there is none of that name or it has another type.
template <class Value>
const Value* FindParameter(const vesk::CommandParameters& parameters, const std::wstring& name)
{
    const vesk::CommandParameterValue* pValue = parameters.Find(name);
    return pValue != nullptr ? std::get_if<Value>(&pValue->Get()) : nullptr;
}
