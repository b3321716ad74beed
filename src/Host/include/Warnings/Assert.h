#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// True when failed assertions go to AssertHelper, false when they only go to the log.
VESK_HOST_API bool IsAssertEnabled();

/// Sets which of the two applies; assertions are initially enabled.
VESK_HOST_API void SetAssertEnabled(bool isEnabled);

/// Writes a failed condition to the log. Never ends the process.
VESK_HOST_API void DumpAssertToLog(const std::string& condition, const std::string& file, int line,
                                   const std::string& function);

/// Reports failed assertions without a user interface.
class VESK_HOST_API AssertHelper
{
public:
    /// The instance of this process; never null.
    static AssertHelper* GetInstance();

    /// Writes the failed condition to standard error. Never ends the process.
    void Assert(const std::wstring& condition, const std::wstring& file, int line);

private:
    AssertHelper() = default;
};

}
