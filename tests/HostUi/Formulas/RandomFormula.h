#pragma once

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <boost/multiprecision/cpp_int.hpp>

#include <cmath>

namespace vesk
{

using Rational = boost::multiprecision::cpp_rational;

/// The exact number of a text of decimal digits.
inline Rational ReadDecimal(const QString& text)
{
    static const QRegularExpression s_firstZeros(QStringLiteral("^0+(?=.)"));
    const QStringList parts = text.toLower().split('e');
    const int point = parts.front().indexOf('.');
    const int decimals = point < 0 ? 0 : parts.front().size() - point - 1;
    const int exponent = (parts.size() > 1 ? parts.back().toInt() : 0) - decimals;
    const QString digits = QString(parts.front()).remove('.').remove(s_firstZeros);
    Rational value(boost::multiprecision::cpp_int(digits.toStdString()));
    for (int i = 0; i < std::abs(exponent); ++i)
        value *= exponent > 0 ? Rational(10) : Rational(1, 10);
    return value;
}

/// Whether no other double is nearer to a number.
inline bool IsNearest(double value, const Rational& number)
{
    const Rational error = abs(Rational(value) - number);
    const auto isNotNearer = [&](double other) {
        return Rational(abs(Rational(other) - number)) >= error;
    };
    return isNotNearer(std::nextafter(value, HUGE_VAL)) &&
           isNotNearer(std::nextafter(value, -HUGE_VAL));
}

/// A formula as somebody might type it, and its value, computed while the formula was generated.
struct RandomFormula
{
    QString text;

    /// In millimetres for a length. A root is a double, everything else is exact.
    Rational value;

    bool hasUnit = false;

    /// Operator precedence: sums 1, products 2, everything else 3.
    int binding = 3;
};

/// Generates formulas of numbers and of lengths. All values are positive and of moderate size.
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

    /// Two to five lengths in any units, added and subtracted.
    RandomFormula MakeSum()
    {
        RandomFormula sum = LengthLiteral();
        for (int i = 1 + Pick(4); i > 0; --i)
            sum = Sum(sum, LengthLiteral());
        return sum;
    }

    int Pick(int count) { return m_random.bounded(count); }

private:
    struct Unit
    {
        const char* name;
        int tenths;
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
        return {text, ReadDecimal(text)};
    }

    RandomFormula LengthLiteral()
    {
        constexpr Unit Units[] = {{"mm", 10},       {"cm", 100}, {"dm", 1000},  {"m", 10000},
                                  {"km", 10000000}, {"in", 254}, {"inch", 254}, {"\"", 254},
                                  {"ft", 3048},     {"'", 3048}};
        const Unit& unit = Units[Pick(10)];
        const QString name = QString::fromLatin1(unit.name);
        RandomFormula number = Literal();
        if (Pick(6) == 0)
            return FeetAndInches();
        if (Pick(6) == 0)
            number = Fraction();
        else if (Pick(6) == 0)
            number = Parentheses(MakeNumber(1));
        return {number.text + name, number.value * Rational(unit.tenths, 10), true};
    }

    RandomFormula Fraction()
    {
        const int above = 1 + Pick(63);
        const int below = 1 + Pick(63);
        return {QString::number(above) + '/' + QString::number(below), Rational(above, below)};
    }

    RandomFormula FeetAndInches()
    {
        const RandomFormula inches = Pick(2) == 0 ? Literal() : Fraction();
        const int feet = 1 + Pick(40);
        return {QString::number(feet) + '\'' + inches.text + '"',
                (feet * 12 + inches.value) * Rational(254, 10), true};
    }

    /// As an operand, in parentheses where necessary, and sometimes where not.
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
        const bool isMinus = Pick(2) == 0 && left.value > 2 * right.value;
        return {Hold(left, isMinus && isFeet ? 4 : 1) + Symbol(isMinus ? '-' : '+') +
                    Hold(right, 2),
                isMinus ? Rational(left.value - right.value) : Rational(left.value + right.value),
                left.hasUnit || right.hasUnit, 1};
    }

    RandomFormula Product(const RandomFormula& left, const RandomFormula& right)
    {
        return {Hold(left, 2) + Symbol('*') + Hold(right, 3), left.value * right.value,
                left.hasUnit || right.hasUnit, 2};
    }

    RandomFormula Quotient(const RandomFormula& left, const RandomFormula& right)
    {
        return {Hold(left, 2) + Symbol('/') + Hold(right, 3), left.value / right.value,
                left.hasUnit || right.hasUnit, 2};
    }

    RandomFormula Root(const RandomFormula& part)
    {
        const double root = std::sqrt(part.value.convert_to<double>());
        return {"sqrt(" + part.text + ')', Rational(root), part.hasUnit};
    }

    RandomFormula Square(const RandomFormula& part)
    {
        return {'(' + part.text + ")^2", part.value * part.value, part.hasUnit};
    }

    RandomFormula Parentheses(const RandomFormula& part)
    {
        return {'(' + part.text + ')', part.value, part.hasUnit};
    }

    QRandomGenerator m_random;
};

}
