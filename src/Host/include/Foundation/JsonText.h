#pragma once

#include "Foundation/HostExport.h"

#include <string>
#include <string_view>

namespace vesk
{

/// Appends JSON values to a text (UTF-8) without building them first.
///
/// The bytes are those that nlohmann::json writes, so that files written either way can be
/// compared.
class VESK_HOST_API JsonText
{
public:
    /// In decimal.
    static void AppendNumber(std::string& text, int number);

    /// With as many digits as it takes to read back the same double; null if it is not finite.
    static void AppendNumber(std::string& text, double number);

    /// A string, with its quotes. Code units that are no character become U+FFFD.
    static void AppendString(std::string& text, std::wstring_view string);

    /// The same of UTF-8; invalid bytes become U+FFFD.
    static void AppendString(std::string& text, std::string_view utf8);
};

}
