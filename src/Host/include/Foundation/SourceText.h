#pragma once

#include <cstddef>

namespace vesk
{

/// Marks a literal as a text of the user interface that is translated where it is shown: that of a
/// table, or of an object that outlives a change of the language. `scripts/translations` finds it.
constexpr const char* operator""_source(const char* text, std::size_t)
{
    return text;
}

constexpr const wchar_t* operator""_source(const wchar_t* text, std::size_t)
{
    return text;
}

}
