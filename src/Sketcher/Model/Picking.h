#pragma once

#include "Geometry/Vector3d.h"

class Sketch;

namespace vesk
{
class IUiView;
}

/// How far the cursor reaches, in the units of the model: 10 pixels of the view. Zero without one.
double CursorReach(const vesk::IUiView* pView);

/// The entity nearest to a point, within reach of the cursor; of equals the one drawn last. 0 when
/// there is none.
int PickEntity(const Sketch& sketch, const vesk::Vector3d& world, const vesk::IUiView* pView);
