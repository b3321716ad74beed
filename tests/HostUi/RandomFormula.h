#pragma once

#include <QRandomGenerator>
#include <QString>
#include <QStringList>

#include <cmath>

namespace vesk
{

/// A formula as somebody might type it, and its value, found while it was made.
struct RandomFormula
{
    QString text;

    /// In millimetres for a length.
    double value = 0.0;

    /// No rounding error of the value exceeds this by more than some parts in 10^15.
    double size = 0.0;

    bool hasUnit = false;

    /// How strongly its parts hold together: sums 1, products 2, all else 3.
    int binding = 3;
};

/// Makes formulas of numbers and of lengths. All values are positive and neither great nor small.
class RandomFormulas
{
public:
    explicit RandomFormulas(quint32 seed) : m_random(seed) {}

    RandomFormula MakeNumber(int depth)
    {
        if (depth == 0)
            return Literal();
        switch (Pick(7))
        {
        case 0:
            return Sum(MakeNumber(depth - 1), MakeNumber(depth - 1));
        case 1:
            return Product(MakeNumber(depth - 1), MakeNumber(depth - 1));
        case 2:
            return Quotient(MakeNumber(depth - 1), MakeNumber(depth - 1));
        case 3:
            return Root(MakeNumber(depth - 1));
        case 4:
            return Square(MakeNumber(depth - 1));
        case 5:
            return Parentheses(MakeNumber(depth - 1));
        default:
            return Literal();
        }
    }

    RandomFormula MakeLength(int depth)
    {
        if (depth == 0)
            return LengthLiteral();
        switch (Pick(7))
        {
        case 0:
            return Sum(MakeLength(depth - 1), MakeLength(depth - 1));
        case 1:
            return Product(MakeNumber(depth - 1), MakeLength(depth - 1));
        case 2:
            return Product(MakeLength(depth - 1), MakeNumber(depth - 1));
        case 3:
            return Quotient(MakeLength(depth - 1), MakeNumber(depth - 1));
        case 4:
            return Root(Sum(Square(MakeLength(depth - 1)), Square(MakeLength(depth - 1))));
        case 5:
            return Parentheses(MakeLength(depth - 1));
        default:
            return LengthLiteral();
        }
    }

    int Pick(int count) { return m_random.bounded(count); }

private:
    struct Unit
    {
        const char* name;
        double millimetres;
    };

    RandomFormula Literal()
    {
        const QString whole = QString::number(1 + Pick(999));
        const QString digits = QString::number(Pick(10000)).rightJustified(1 + Pick(6), '0');
        const QStringList forms{whole,
                                whole + '.',
                                whole + '.' + digits,
                                ".1" + digits,
                                whole + '.' + digits + "e-1",
                                "1" + digits + "E-2"};
        const QString text = forms[Pick(forms.size())];
        return {text, text.toDouble(), text.toDouble()};
    }

    RandomFormula LengthLiteral()
    {
        constexpr Unit Units[] = {{"mm", 1.0},   {"cm", 10.0}, {"dm", 100.0},  {"m", 1000.0},
                                  {"km", 1e6},   {"in", 25.4}, {"inch", 25.4}, {"\"", 25.4},
                                  {"ft", 304.8}, {"'", 304.8}};
        const Unit& unit = Units[Pick(10)];
        const QString name = QString::fromLatin1(unit.name);
        RandomFormula number = Literal();
        if (Pick(6) == 0)
            return FeetAndInches();
        if (Pick(6) == 0)
            number = Fraction();
        else if (Pick(6) == 0)
            number = Parentheses(MakeNumber(1));
        const double value = number.value * unit.millimetres;
        return {number.text + name, value, number.size * unit.millimetres, true};
    }

    RandomFormula Fraction()
    {
        const int above = 1 + Pick(63);
        const int below = 1 + Pick(63);
        const double value = static_cast<double>(above) / below;
        return {QString::number(above) + '/' + QString::number(below), value, value};
    }

    RandomFormula FeetAndInches()
    {
        const RandomFormula inches = Pick(2) == 0 ? Literal() : Fraction();
        const int feet = 1 + Pick(40);
        const double value = feet * 304.8 + inches.value * 25.4;
        return {QString::number(feet) + '\'' + inches.text + '"', value, value, true};
    }

    /// As an operand that nothing tears apart. What stands in parentheses may get more of them.
    QString Hold(const RandomFormula& part, int binding)
    {
        return part.binding < binding || Pick(8) == 0 ? '(' + part.text + ')' : part.text;
    }

    QString Symbol(char symbol)
    {
        const QString blank = Pick(5) == 0 ? QStringLiteral(" ") : QString();
        return blank + QLatin1Char(symbol) + blank;
    }

    RandomFormula Sum(const RandomFormula& left, const RandomFormula& right)
    {
        // Feet, a dash and inches would be one length to a builder.
        const bool isFeet = left.text.endsWith('\'') || left.text.endsWith("ft");
        const bool isMinus = Pick(2) == 0 && left.value > 2.0 * right.value;
        return {Hold(left, isMinus && isFeet ? 4 : 1) + Symbol(isMinus ? '-' : '+') +
                    Hold(right, 2),
                isMinus ? left.value - right.value : left.value + right.value,
                left.size + right.size, left.hasUnit || right.hasUnit, 1};
    }

    RandomFormula Product(const RandomFormula& left, const RandomFormula& right)
    {
        return {Hold(left, 2) + Symbol('*') + Hold(right, 3), left.value * right.value,
                left.size * right.size, left.hasUnit || right.hasUnit, 2};
    }

    RandomFormula Quotient(const RandomFormula& left, const RandomFormula& right)
    {
        const double loss = right.size / right.value;
        return {Hold(left, 2) + Symbol('/') + Hold(right, 3), left.value / right.value,
                left.size / right.value * loss, left.hasUnit || right.hasUnit, 2};
    }

    RandomFormula Root(const RandomFormula& part)
    {
        const double root = std::sqrt(part.value);
        return {"sqrt(" + part.text + ')', root, part.size / root, part.hasUnit};
    }

    RandomFormula Square(const RandomFormula& part)
    {
        return {'(' + part.text + ")^2", std::pow(part.value, 2.0), part.size * part.size,
                part.hasUnit};
    }

    RandomFormula Parentheses(const RandomFormula& part)
    {
        return {'(' + part.text + ')', part.value, part.size, part.hasUnit};
    }

    QRandomGenerator m_random;
};

}
