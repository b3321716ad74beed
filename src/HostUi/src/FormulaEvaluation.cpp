#include "FormulaEvaluation.h"

#include <muParser.h>

#include <cmath>
#include <string>

namespace vesk
{
namespace
{

constexpr double RightAngle = 90.0;

double ToRadians(double degrees)
{
    return degrees / 180.0 * std::acos(-1.0);
}

/// For angles of at most 45 degrees.
double SineOfSmall(double degrees)
{
    return std::abs(degrees) == 30.0 ? std::copysign(0.5, degrees) : std::sin(ToRadians(degrees));
}

/// The sine of so many right angles and an angle of at most 45 degrees.
double SineOfSum(int rightAngles, double degrees)
{
    const unsigned quadrant = static_cast<unsigned>(rightAngles) % 4;
    const double sine = quadrant % 2 == 0 ? SineOfSmall(degrees) : std::cos(ToRadians(degrees));
    return quadrant < 2 ? sine : -sine;
}

double Sine(double degrees)
{
    int rightAngles = 0;
    const double rest = std::remquo(degrees, RightAngle, &rightAngles);
    return SineOfSum(rightAngles, rest);
}

double Cosine(double degrees)
{
    int rightAngles = 0;
    const double rest = std::remquo(degrees, RightAngle, &rightAngles);
    return SineOfSum(rightAngles + 1, rest);
}

double Tangent(double degrees)
{
    const bool isDiagonal = std::abs(std::remainder(degrees, RightAngle)) == RightAngle / 2;
    const double tangent = Sine(degrees) / Cosine(degrees);
    return isDiagonal ? std::copysign(1.0, tangent) : tangent;
}

/// The angle in whole degrees, wherever its function is the very argument.
double Invert(double argument, double radians, double (*pFunction)(double))
{
    const double degrees = radians * 180.0 / std::acos(-1.0);
    const double whole = std::round(degrees);
    return pFunction(whole) == argument ? whole : degrees;
}

double ArcSine(double sine)
{
    return Invert(sine, std::asin(sine), &Sine);
}

double ArcCosine(double cosine)
{
    return Invert(cosine, std::acos(cosine), &Cosine);
}

double ArcTangent(double tangent)
{
    return Invert(tangent, std::atan(tangent), &Tangent);
}

/// Gives the evaluator the functions of angles in degrees. They are exact wherever a table of
/// angles is: sin 30 is a half.
void DefineDegreeFunctions(mu::Parser& parser)
{
    parser.DefineFun("sind", &Sine);
    parser.DefineFun("cosd", &Cosine);
    parser.DefineFun("tand", &Tangent);
    parser.DefineFun("asind", &ArcSine);
    parser.DefineFun("acosd", &ArcCosine);
    parser.DefineFun("atand", &ArcTangent);
}

}

double Evaluate(const CheckedFormula& formula)
{
    // Every number has a name: of the evaluator's own ways to write numbers none is ever met.
    mu::Parser parser;
    parser.EnableOptimizer(false);
    DefineDegreeFunctions(parser);
    for (std::size_t i = 0; i < formula.operands.size(); ++i)
        parser.DefineConst('v' + std::to_string(i), formula.operands[i]);
    parser.SetExpr(formula.expression);
    return parser.Eval();
}

}
