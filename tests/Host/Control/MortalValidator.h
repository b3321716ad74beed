#pragma once

#include "Validation/ValidatorBase.h"

#include <string>

namespace vesk
{

/// Reports its destruction.
class MortalValidator final : public ValidatorBase
{
public:
    explicit MortalValidator(bool& isAlive) : m_isAlive(isAlive) { m_isAlive = true; }
    ~MortalValidator() override { m_isAlive = false; }
    bool ValidateInput(const std::wstring& /*text*/) const override { return true; }

private:
    bool& m_isAlive;
};

}
