#pragma once

#include "Dimension/TemporaryDimensionData.h"
#include "Geometry/Vector3d.h"

namespace vesk
{

class DimensionDrawing;
class EditorPlacement;
class TemporaryDimensionStyle;

/// Each fills in the entry and adds the text at its position. Model lengths and radii, in
/// millimetres, are entered in the display unit.
void PlaceLengthText(const Vector3d& position, double modelLength,
                     const TemporaryDimensionStyle& style, DimensionDrawing& drawing,
                     TemporaryDimensionData::Entry& entry);
void PlaceRadiusText(const Vector3d& position, double modelRadius,
                     const TemporaryDimensionStyle& style, DimensionDrawing& drawing,
                     TemporaryDimensionData::Entry& entry);
void PlaceAngleText(const Vector3d& position, double degrees, const TemporaryDimensionStyle& style,
                    DimensionDrawing& drawing, TemporaryDimensionData::Entry& entry);

/// Keeps a text clear of the text of the dimension generated before it; does nothing if that was
/// not generated.
void AvoidEarlierText(const TemporaryDimensionData::Entry& earlier, EditorPlacement& placement);

}
