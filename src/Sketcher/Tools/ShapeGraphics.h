#pragma once

#include "Model/Shape.h"

#include "Foundation/OwnerPtr.h"

namespace vesk
{
class IGraphicsNodeGroup;
}

/// Adds the outline of a shape to a rubber band.
void AddRubberBand(vesk::IGraphicsNodeGroup& group, const Shape& shape);

/// A rubber band of just the outline of a shape.
vesk::OwnerPtr<vesk::IGraphicsNodeGroup> MakeRubberBand(const Shape& shape);
