#include "Validation/NumberValidator.h"

#include "Foundation/HostText.h"
#include "Foundation/Text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>
#include <system_error>
#include <type_traits>

namespace vesk
{

namespace
{

constexpr bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// The text without one leading sign.
std::string_view SkipSign(std::string_view text)
{
    const bool hasSign = !text.empty() && (text.front() == '+' || text.front() == '-');
    return hasSign ? text.substr(1) : text;
}

/// The whole text as a number; empty if it is not a number or `T` cannot represent it.
template <class T>
std::optional<T> ParseNumber(std::string_view text)
{
    // Only a digit or a point can begin a number; this excludes "inf" and "nan".
    const std::string_view unsignedText = SkipSign(text);
    if (unsignedText.empty() || !(IsDigit(unsignedText.front()) || unsignedText.front() == '.'))
        return std::nullopt;
    const std::string_view number = text.front() == '+' ? unsignedText : text;
    const char* const pEnd = number.data() + number.size();
    T value{};
    const std::from_chars_result result = std::from_chars(number.data(), pEnd, value);
    if (result.ec != std::errc() || result.ptr != pEnd)
        return std::nullopt;
    return value;
}

std::wstring FormatNumber(int value)
{
    return std::to_wstring(value);
}

/// The shortest text that reads back as the same double, without an exponent where that is legible.
std::wstring FormatNumber(double value)
{
    std::array<char, 64> text{};
    const double magnitude = std::abs(value);
    const bool isPlain = magnitude == 0 || (magnitude >= 1e-9 && magnitude < 1e15);
    char* const pBegin = text.data();
    char* const pEnd = pBegin + text.size();
    const std::to_chars_result result =
        isPlain ? std::to_chars(pBegin, pEnd, value, std::chars_format::fixed)
                : std::to_chars(pBegin, pEnd, value);
    return FromUtf8(std::string(pBegin, result.ptr));
}

/// The noun for the number in a tip about the range.
template <class T>
constexpr const wchar_t* Noun = std::is_integral_v<T> ? L"整数"_source : L"数"_source;

}

template <class T>
bool NumberValidator<T>::ValidateInput(const std::wstring& text) const
{
    const std::optional<T> value = ParseNumber<T>(ToUtf8(text));
    return value.has_value() && ValidateValue(*value);
}

template <class T>
std::wstring NumberValidator<T>::GetTip() const
{
    const std::wstring tip = ValidatorBase::GetTip();
    if (!tip.empty())
        return tip;
    const bool hasBottom = m_bottom > std::numeric_limits<T>::lowest();
    const bool hasTop = m_top < std::numeric_limits<T>::max();
    const std::wstring noun = TranslateHostText(Noun<T>);
    if (!hasBottom && !hasTop)
        return WithArguments(L"请输入一个%1"_tr, {noun});
    const std::wstring bottom = FormatNumber(m_bottom);
    const std::wstring top = FormatNumber(m_top);
    if (hasBottom && hasTop && m_isBottomInclusive && m_isTopInclusive)
        return WithArguments(L"请输入 %1 到 %2 之间的%3"_tr, {bottom, top, noun});
    const std::wstring above =
        WithArguments(m_isBottomInclusive ? L"不小于 %1"_tr : L"大于 %1"_tr, {bottom});
    const std::wstring below =
        WithArguments(m_isTopInclusive ? L"不大于 %1"_tr : L"小于 %1"_tr, {top});
    if (hasBottom && hasTop)
        return WithArguments(L"请输入%1 且%2 的%3"_tr, {above, below, noun});
    return WithArguments(L"请输入%1 的%2"_tr, {hasBottom ? above : below, noun});
}

template class NumberValidator<int>;
template class NumberValidator<double>;

}
