#pragma once

#include <utf8.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

namespace vesk
{

/// Replaces everything that is not a character.
inline constexpr std::uint32_t ReplacementCharacter = 0xFFFD;

/// True for the halves of a UTF-16 surrogate pair, which are not characters by themselves.
constexpr bool IsSurrogate(std::uint32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDFFF;
}

/// The code point at `index` of a text of four-byte units; moves the index past it.
template <class Wide>
std::uint32_t TakeUtf32(std::basic_string_view<Wide> text, std::size_t& index)
{
    const auto unit = static_cast<std::uint32_t>(text[index++]);
    return unit > 0x10FFFF || IsSurrogate(unit) ? ReplacementCharacter : unit;
}

/// The code point at `index` of a text of two-byte units; moves the index past it.
template <class Wide>
std::uint32_t TakeUtf16(std::basic_string_view<Wide> text, std::size_t& index)
{
    const auto unit = static_cast<std::uint32_t>(text[index++]);
    if (!IsSurrogate(unit))
        return unit;
    const std::uint32_t next =
        index < text.size() ? static_cast<std::uint32_t>(text[index]) : std::uint32_t{0};
    const bool isPair = unit < 0xDC00 && next >= 0xDC00 && next <= 0xDFFF;
    if (!isPair)
        return ReplacementCharacter;
    ++index;
    return 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00);
}

/// The number of UTF-16 units of the character at `index` of a wide text; moves the index past it.
template <class Wide>
int TakeUtf16Units(std::basic_string_view<Wide> text, std::size_t& index)
{
    const std::size_t first = index;
    if constexpr (sizeof(Wide) == 2)
    {
        TakeUtf16(text, index);
        return static_cast<int>(index - first);
    }
    else
    {
        ++index;
        return static_cast<std::uint32_t>(text[first]) > 0xFFFF ? 2 : 1;
    }
}

/// Converts wide text to UTF-8, for either width of `wchar_t`.
template <class Wide>
std::string WideToUtf8(std::basic_string_view<Wide> text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t index = 0; index < text.size();)
    {
        if constexpr (sizeof(Wide) == 2)
            utf8::unchecked::append(TakeUtf16(text, index), std::back_inserter(result));
        else
            utf8::unchecked::append(TakeUtf32(text, index), std::back_inserter(result));
    }
    return result;
}

/// Converts UTF-8 to wide text, for either width of `wchar_t`.
template <class Wide>
std::basic_string<Wide> Utf8ToWide(std::string_view text)
{
    std::string valid;
    valid.reserve(text.size());
    utf8::replace_invalid(text.begin(), text.end(), std::back_inserter(valid),
                          ReplacementCharacter);
    std::basic_string<Wide> result;
    result.reserve(valid.size());
    if constexpr (sizeof(Wide) == 2)
        utf8::unchecked::utf8to16(valid.begin(), valid.end(), std::back_inserter(result));
    else
        utf8::unchecked::utf8to32(valid.begin(), valid.end(), std::back_inserter(result));
    return result;
}

}
