#include "HostUi/Contrast.h"

#include <QPalette>

#include <algorithm>
#include <cmath>

namespace vesk
{
namespace
{

double Linear(double part)
{
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour)
{
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

QColor Mixed(const QColor& from, const QColor& to, double share)
{
    const auto mix = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue()),
            from.alpha()};
}

}

double ContrastOf(const QColor& a, const QColor& b)
{
    constexpr double Glare = 0.05;
    const double first = Luminance(a) + Glare;
    const double second = Luminance(b) + Glare;
    return std::max(first, second) / std::min(first, second);
}

bool IsHighContrast(const QPalette& palette)
{
    constexpr double Least = 15.0;
    const QColor base = palette.color(QPalette::Base);
    return base == palette.color(QPalette::Window) && base == palette.color(QPalette::Button) &&
           ContrastOf(palette.color(QPalette::Text), base) >= Least;
}

QColor Legible(const QColor& ink, const QPalette& palette)
{
    constexpr int Steps = 32;
    const QColor paper = palette.color(QPalette::Base);
    const double least = IsHighContrast(palette) ? 7.0 : 4.5;
    const bool isLighter = ContrastOf(Qt::white, paper) > ContrastOf(Qt::black, paper);
    const QColor limit = isLighter ? Qt::white : Qt::black;
    QColor colour = ink;
    for (int i = 1; i <= Steps && ContrastOf(colour, paper) < least; ++i)
        colour = Mixed(ink, limit, static_cast<double>(i) / Steps);
    return colour;
}

}
