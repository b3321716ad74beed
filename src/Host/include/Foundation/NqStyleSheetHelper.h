#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// The style sheet that the application gives its panes.
class VESK_HOST_API NqStyleSheetHelper
{
public:
    /// The one of the process; never null.
    static NqStyleSheetHelper* Instance();

    /// The text of the style sheet; empty at first.
    const std::wstring& GetCurrentStyleData() const { return m_styleData; }

    /// Chooses another one for the panes made from now on.
    void SetCurrentStyleData(const std::wstring& styleData) { m_styleData = styleData; }

private:
    NqStyleSheetHelper() = default;

    std::wstring m_styleData;
};

}
