#pragma once

#include "Warnings/IDebugWarningDisplayer.h"

namespace vesk
{

/// Shows debug warnings in a modal dialog. GUI thread only.
class DebugWarningDialogDisplayer final : public IDebugWarningDialogDisplayer
{
public:
    /// Waits for the user's answer; false if this warning should not be shown again. Without an
    /// application it only asserts, or logs, that a warning was raised, and returns true.
    bool Display(const std::string& file, int line, const std::string& function,
                 const std::wstring& message, const std::wstring& person,
                 const std::wstring& date) override;

    ~DebugWarningDialogDisplayer() override;
};

}
