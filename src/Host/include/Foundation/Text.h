#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// Converts wide text (UTF-32 or UTF-16, by the width of `wchar_t`) to UTF-8. Invalid code units
/// become U+FFFD.
VESK_HOST_API std::string ToUtf8(const std::wstring& text);

/// Converts UTF-8 to wide text. Invalid bytes become U+FFFD.
VESK_HOST_API std::wstring FromUtf8(const std::string& utf8);

}
