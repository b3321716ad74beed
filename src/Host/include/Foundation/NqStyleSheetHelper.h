#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// The style sheet that the application applies to its panes.
class VESK_HOST_API NqStyleSheetHelper
{
public:
    /// The process-wide instance; never null.
    static NqStyleSheetHelper* Instance();

    /// The text of the style sheet; initially empty.
    const std::wstring& GetCurrentStyleData() const { return m_styleData; }

    /// Sets the style sheet for panes created from now on.
    void SetCurrentStyleData(const std::wstring& styleData) { m_styleData = styleData; }

private:
    NqStyleSheetHelper() = default;

    std::wstring m_styleData;
};

}
