#pragma once

#include "Warnings/IDebugWarningDisplayer.h"

namespace vesk
{

/// Shows debug warnings in a modal dialog. GUI thread only.
class DebugWarningDialogDisplayer final : public IDebugWarningDialogDisplayer
{
public:
    /// Waits for the user's answer; false when this warning is not to be shown again. Without an
    /// application the fact alone is asserted, or logged, and the answer is true.
    bool Display(const std::string& file, int line, const std::string& function,
                 const std::wstring& message, const std::wstring& person,
                 const std::wstring& date) override;

    ~DebugWarningDialogDisplayer() override;
};

}
