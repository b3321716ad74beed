#include "Foundation/JsonText.h"

#include "Foundation/WideText.h"

#include <nlohmann/json.hpp>

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>
#include <type_traits>

namespace vesk
{

namespace
{

/// True if all characters stand for themselves in a JSON string, and are one byte in UTF-8. Looks
/// at all of them: a loop that ends early is not vectorised, and nearly all texts are plain.
template <class Character>
bool IsPlain(std::basic_string_view<Character> text)
{
    using Unit = std::make_unsigned_t<Character>;
    Unit special = 0;
    for (const Character character : text)
    {
        const auto unit = static_cast<Unit>(character);
        special |=
            static_cast<Unit>((unit < 0x20) | (unit >= 0x80) | (unit == '"') | (unit == '\\'));
    }
    return special == 0;
}

/// Both have the same size.
void Copy(std::wstring_view from, char* pTo)
{
    for (const wchar_t character : from)
        *pTo++ = static_cast<char>(character);
}

void AppendEscaped(std::string& text, char character)
{
    constexpr std::string_view Named = "\"\\\b\f\n\r\t";
    constexpr std::string_view Names = "\"\\bfnrt";
    constexpr std::string_view Digits = "0123456789abcdef";
    text += '\\';
    if (const std::size_t index = Named.find(character); index != std::string_view::npos)
    {
        text += Names[index];
        return;
    }
    const auto code = static_cast<unsigned char>(character);
    text += "u00";
    text += Digits[code >> 4];
    text += Digits[code & 0xF];
}

bool IsEscaped(char character)
{
    return static_cast<unsigned char>(character) < 0x20 || character == '"' || character == '\\';
}

void AppendValid(std::string& text, std::string_view utf8)
{
    text += '"';
    for (const char character : utf8)
    {
        if (IsEscaped(character))
            AppendEscaped(text, character);
        else
            text += character;
    }
    text += '"';
}

}

void JsonText::AppendNumber(std::string& text, int number)
{
    std::array<char, std::numeric_limits<int>::digits10 + 3> digits{};
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    text.append(digits.data(), end);
}

void JsonText::AppendNumber(std::string& text, double number)
{
    if (!std::isfinite(number))
    {
        text += "null";
        return;
    }
    // Not std::to_chars: of the texts that read back as the same double it takes another one for
    // some numbers, and files would no longer be the same.
    std::array<char, 64> digits; // NOLINT(*-member-init): as far as it is read, it is written.
    char* const end =
        nlohmann::detail::to_chars(digits.data(), digits.data() + digits.size(), number);
    text.append(digits.data(), end);
}

void JsonText::AppendString(std::string& text, std::wstring_view string)
{
    if (!IsPlain(string))
    {
        AppendValid(text, WideToUtf8(string));
        return;
    }
    const std::size_t begin = text.size() + 1;
    text.append(string.size() + 2, '"');
    Copy(string, text.data() + begin);
}

void JsonText::AppendString(std::string& text, std::string_view utf8)
{
    if (IsPlain(utf8))
    {
        text += '"';
        text += utf8;
        text += '"';
        return;
    }
    std::string valid;
    utf8::replace_invalid(utf8.begin(), utf8.end(), std::back_inserter(valid),
                          ReplacementCharacter);
    AppendValid(text, valid);
}

}
