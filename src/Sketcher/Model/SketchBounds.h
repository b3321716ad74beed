#pragma once

#include "Model/ShapeMeasure.h"

#include <optional>

class Sketch;

/// The bounds of all entities on visible layers; nothing if there are none.
std::optional<ShapeBounds> BoundsOf(const Sketch& sketch);
