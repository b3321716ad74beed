#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace vesk
{

/// Reads one JSON value. False when the text (UTF-8) is none, holds a number beyond the doubles or
/// a key twice in one object, or is nested more deeply than anybody means it; `error` then says so.
bool ParseJson(const std::string& text, nlohmann::ordered_json& value, std::string& error);

}
