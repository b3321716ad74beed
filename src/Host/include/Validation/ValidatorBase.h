#pragma once

#include "Foundation/HostExport.h"

#include <string>
#include <utility>

namespace vesk
{

/// Validates what is typed. Never alters or rejects a character.
class VESK_HOST_API ValidatorBase
{
public:
    /// `tip` is what GetTip returns.
    explicit ValidatorBase(std::wstring tip = {}) : m_tip(std::move(tip)) {}
    virtual ~ValidatorBase() = default;

    /// True when the text as it stands would be accepted.
    virtual bool ValidateInput(const std::wstring& text) const = 0;

    /// What to tell the user if it would not be accepted; may be empty.
    virtual std::wstring GetTip() const { return m_tip; }

private:
    std::wstring m_tip;
};

}
