#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace vesk
{

/// Parses one JSON value. False if the text (UTF-8) is not valid JSON, contains a number beyond the
/// range of double or a duplicate key in an object, or is nested too deeply; `error` then says so.
bool ParseJson(const std::string& text, nlohmann::ordered_json& value, std::string& error);

}
