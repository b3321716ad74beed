#pragma once

/// The distance of the lines of the grid at a scale: the least of 1, 2, 5, 10, 20 ... that takes at
/// least 8 pixels.
double GridStep(double worldPerPixel);
