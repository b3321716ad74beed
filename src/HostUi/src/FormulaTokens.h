#pragma once

#include "HostUi/TypedText.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace vesk
{

/// A number without a sign, as it was written in decimal digits.
struct DecimalNumber
{
    double value = 0.0;

    /// The number is mantissa * 10^exponent; nothing where the digits are too many.
    std::optional<std::int64_t> mantissa;
    int exponent = 0;

    bool isInteger = false; ///< Nothing but digits.
    bool hasComma = false;
};

/// A piece of a formula.
struct FormulaToken
{
    enum class Kind
    {
        Number,
        Name,   ///< Letters, or the mark of a unit: ' " or a degree sign.
        Symbol, ///< One of + - * / ^ ( ).
        End,
    };

    Kind kind = Kind::End;
    QString text;
    DecimalNumber number;

    bool Is(char symbol) const { return kind == Kind::Symbol && text == QLatin1Char(symbol); }
};

/// The pieces of a text, an End last; nothing, and a fault, where it cannot be one formula.
std::optional<std::vector<FormulaToken>> SplitFormula(const QString& text, TypedTextFault& fault);

}
