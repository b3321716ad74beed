#include "FormulaFunctions.h"

namespace vesk
{
namespace
{

using Rule = FormulaFunction::Rule;

constexpr FormulaFunction Functions[] = {
    {"abs", "abs", Rule::Keeps},      {"sqrt", "sqrt", Rule::Halves},
    {"sin", "sind", Rule::OfAngle},   {"cos", "cosd", Rule::OfAngle},
    {"tan", "tand", Rule::OfAngle},   {"asin", "asind", Rule::ToAngle},
    {"acos", "acosd", Rule::ToAngle}, {"atan", "atand", Rule::ToAngle},
};

}

std::optional<Dimension> FormulaFunction::ResultOf(const Dimension& argument) const
{
    switch (rule)
    {
    case Rule::Keeps:
        return argument;
    case Rule::Halves:
        if (argument.length % 2 != 0 || argument.angle % 2 != 0)
            return std::nullopt;
        return Dimension{argument.length / 2, argument.angle / 2};
    case Rule::OfAngle:
        return argument == Dimension{0, 1} ? std::optional(Dimension{}) : std::nullopt;
    case Rule::ToAngle:
        return argument.IsNumber() ? std::optional(Dimension{0, 1}) : std::nullopt;
    }
    return std::nullopt;
}

const FormulaFunction* FindFunction(const QString& name)
{
    for (const FormulaFunction& function : Functions)
    {
        if (name == QLatin1String(function.name))
            return &function;
    }
    return nullptr;
}

}
