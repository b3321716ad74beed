#pragma once

#include "Geometry/Vector3d.h"

class Sketch;

namespace vesk
{
class IUiView;
}

/// The reach of the cursor in model units: 10 pixels of the view. Zero without a view.
double CursorReach(const vesk::IUiView* pView);

/// The entity that can be picked and is nearest to a point, within reach of the cursor; among
/// equals the one drawn last. 0 if there is none.
int PickEntity(const Sketch& sketch, const vesk::Vector3d& world, const vesk::IUiView* pView);
