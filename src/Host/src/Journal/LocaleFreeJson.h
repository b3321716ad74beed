#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace vesk
{

/// Reads one JSON value. False when the text (UTF-8) is none, or holds a number beyond the doubles.
///
/// The JSON library reads real numbers with the C library, which takes the locale's decimal point
/// for a point. This one takes none but the point, and gives the double nearest to what was
/// written.
bool ParseJson(const std::string& text, nlohmann::ordered_json& value);

}
