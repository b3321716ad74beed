#pragma once

#include "HostUi/TypedText.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace vesk
{

/// An unsigned number as written in decimal digits: digits * 10^exponent.
struct DecimalNumber
{
    std::string digits; ///< At least one.
    int exponent = 0;   ///< Within the range of doubles; meaningless for zero.

    bool isInteger = false; ///< Digits only.
    bool hasComma = false;
};

/// A token of a formula.
struct FormulaToken
{
    enum class Kind
    {
        Number,
        Name,   ///< Letters, or the symbol of a unit: ' " or a degree sign.
        Symbol, ///< One of + - * / ^ ( ).
        End,
    };

    Kind kind = Kind::End;
    QString text;
    DecimalNumber number;

    bool Is(char symbol) const { return kind == Kind::Symbol && text == QLatin1Char(symbol); }
};

/// Splits a text into tokens, with an End last; nothing, and a fault, if it cannot be a formula.
std::optional<std::vector<FormulaToken>> SplitFormula(const QString& text, TypedTextFault& fault);

}
