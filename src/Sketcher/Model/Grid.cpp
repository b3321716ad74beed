#include "Model/Grid.h"

#include <cmath>
#include <initializer_list>

double GridStep(double worldPerPixel)
{
    constexpr double LeastPixels = 8.0;
    const double least = worldPerPixel * LeastPixels;
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0})
    {
        if (factor * power >= least)
            return factor * power;
    }
    return 10.0 * power;
}
