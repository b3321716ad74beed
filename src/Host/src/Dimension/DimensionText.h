#pragma once

#include "Dimension/TemporaryDimensionData.h"
#include "Geometry/Vector3d.h"

namespace vesk
{

class DimensionDrawing;
class EditorPlacement;
class TemporaryDimensionStyle;

/// Each enters what was found, and adds the text at its place: lengths and radii of the model, in
/// millimetres, are entered in the unit shown.
void PlaceLengthText(const Vector3d& position, double modelLength,
                     const TemporaryDimensionStyle& style, DimensionDrawing& drawing,
                     TemporaryDimensionData::Entry& entry);
void PlaceRadiusText(const Vector3d& position, double modelRadius,
                     const TemporaryDimensionStyle& style, DimensionDrawing& drawing,
                     TemporaryDimensionData::Entry& entry);
void PlaceAngleText(const Vector3d& position, double degrees, const TemporaryDimensionStyle& style,
                    DimensionDrawing& drawing, TemporaryDimensionData::Entry& entry);

/// Keeps a text off that of the dimension which is made before it; nothing while that was not made.
void AvoidEarlierText(const TemporaryDimensionData::Entry& earlier, EditorPlacement& placement);

}
