#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// Shows debug warnings to the user.
class VESK_HOST_API IDebugWarningDisplayer
{
public:
    /// Shows one warning and waits for the answer. False if this warning must not be shown again.
    virtual bool Display(const std::string& file, int line, const std::string& function,
                         const std::wstring& message, const std::wstring& person,
                         const std::wstring& date) = 0;

    virtual ~IDebugWarningDisplayer() = default;
};

/// Shows warnings in a dialog.
class VESK_HOST_API IDebugWarningDialogDisplayer : public IDebugWarningDisplayer
{};

}
