// SPDX-License-Identifier: GPL-3.0-or-later

#include "ExactDxfStream.h"

#include <array>
#include <charconv>

ExactDxfStream::ExactDxfStream(std::ostream& stream)
    : DL_WriterA("", DL_Codes::AC1015), m_stream(stream)
{}

void ExactDxfStream::dxfReal(int groupCode, double value) const
{
    constexpr std::size_t LongestDouble = 32;
    std::array<char, LongestDouble> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    std::string text(digits.data(), result.ptr);
    // Some programs take a number without a point for an integer.
    if (text.find_first_of(".e") == std::string::npos)
        text += ".0";
    dxfString(groupCode, text);
}

void ExactDxfStream::dxfInt(int groupCode, int value) const
{
    dxfString(groupCode, std::to_string(value));
}

void ExactDxfStream::dxfHex(int groupCode, int value) const
{
    constexpr int Hexadecimal = 16;
    std::array<char, 16> digits{};
    const auto result =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, Hexadecimal);
    std::string text(digits.data(), result.ptr);
    for (char& digit : text)
        digit = digit >= 'a' ? static_cast<char>(digit - 'a' + 'A') : digit;
    dxfString(groupCode, text);
}

void ExactDxfStream::dxfString(int groupCode, const char* pValue) const
{
    if (pValue != nullptr)
        dxfString(groupCode, std::string(pValue));
}

void ExactDxfStream::dxfString(int groupCode, const std::string& value) const
{
    m_stream << (groupCode < 10    ? "  "
                 : groupCode < 100 ? " "
                                   : "")
             << groupCode << '\n'
             << value << '\n';
}
