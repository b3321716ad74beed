#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// UTF-8 of a wide text (UTF-32 or UTF-16, by the width of `wchar_t`). What is not valid becomes
/// U+FFFD.
VESK_HOST_API std::string ToUtf8(const std::wstring& text);

/// Wide text of UTF-8. What is not valid becomes U+FFFD.
VESK_HOST_API std::wstring FromUtf8(const std::string& utf8);

}
