#pragma once

#include "Model/Shape.h"

#include "Foundation/OwnerPtr.h"

namespace vesk
{
class IGraphicsNodeGroup;
}

/// Adds the outline of a shape to what an action would draw.
void AddRubberBand(vesk::IGraphicsNodeGroup& group, const Shape& shape);

/// The outline of a shape alone.
vesk::OwnerPtr<vesk::IGraphicsNodeGroup> MakeRubberBand(const Shape& shape);
