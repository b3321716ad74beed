#pragma once

/// The spacing of the grid lines at a scale: the smallest of 1, 2, 5, 10, 20 ... that covers at
/// least 8 pixels.
double GridStep(double worldPerPixel);
