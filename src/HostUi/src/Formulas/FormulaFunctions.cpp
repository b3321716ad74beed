#include "Formulas/FormulaFunctions.h"

#include "Geometry/Degrees.h"

#include <cmath>

namespace vesk
{
namespace
{

using Rule = FormulaFunction::Rule;

double SquareRoot(double square)
{
    return std::sqrt(square);
}

constexpr FormulaFunction Functions[] = {
    {"abs", nullptr, Rule::Keeps},
    {"sqrt", &SquareRoot, Rule::Halves},
    {"sin", &Degrees::Sine, Rule::OfAngle},
    {"cos", &Degrees::Cosine, Rule::OfAngle},
    {"tan", &Degrees::Tangent, Rule::OfAngle},
    {"asin", &Degrees::ArcSine, Rule::ToAngle},
    {"acos", &Degrees::ArcCosine, Rule::ToAngle},
    {"atan", &Degrees::ArcTangent, Rule::ToAngle},
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
