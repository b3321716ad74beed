#include "Dimension/DimensionText.h"

#include "Dimension/DimensionDrawing.h"
#include "Dimension/EditorPlacement.h"
#include "Dimension/TemporaryDimensionStyle.h"

namespace vesk
{

void PlaceLengthText(const Vector3d& position, double modelLength,
                     const TemporaryDimensionStyle& style, DimensionDrawing& drawing,
                     TemporaryDimensionData::Entry& entry)
{
    entry = {position, style.ToShown(modelLength)};
    drawing.AddText(position, style.FormatLength(entry.value));
}

void PlaceRadiusText(const Vector3d& position, double modelRadius,
                     const TemporaryDimensionStyle& style, DimensionDrawing& drawing,
                     TemporaryDimensionData::Entry& entry)
{
    entry = {position, style.ToShown(modelRadius)};
    drawing.AddText(position, L"R" + style.FormatLength(entry.value));
}

void PlaceAngleText(const Vector3d& position, double degrees, const TemporaryDimensionStyle& style,
                    DimensionDrawing& drawing, TemporaryDimensionData::Entry& entry)
{
    entry = {position, degrees};
    drawing.AddText(position, style.FormatAngle(degrees) + L"\u00B0");
}

void AvoidEarlierText(const TemporaryDimensionData::Entry& earlier, EditorPlacement& placement)
{
    if (earlier.value != 0.0 || !earlier.textPosition.isZero(0.0))
        placement.AvoidText(earlier.textPosition);
}

}
