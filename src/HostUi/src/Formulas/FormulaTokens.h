#pragma once

#include "HostUi/TypedText.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace vesk
{

/// A number without a sign, as it was written in decimal digits: digits * 10^exponent.
struct DecimalNumber
{
    std::string digits; ///< At least one.
    int exponent = 0;   ///< Of a size that doubles have, but for zero, where it says nothing.

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
