#pragma once

#include "Model/SketchContent.h"

#include <vector>

class Sketch;

/// Some entities of a drawing as a drawing of their own, in the order in which they were drawn,
/// with the layers that they are on.
SketchContent ContentOf(const Sketch& sketch, const std::vector<int>& ids);

/// The same content with all shapes moved.
SketchContent Translated(const SketchContent& content, const vesk::Vector3d& way);

/// How far to move content so that it does not cover its like in the drawing: a multiple, at least
/// `least`, of one step to the right and one down.
vesk::Vector3d FindFreeWay(const Sketch& sketch, const SketchContent& content, double step,
                           int least);
