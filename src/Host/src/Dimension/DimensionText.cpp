#include "Dimension/DimensionText.h"

#include "Dimension/DimensionDrawing.h"
#include "Dimension/EditorPlacement.h"
#include "Dimension/TemporaryDimensionStyle.h"

#include <cmath>

namespace vesk
{

namespace
{

/// The value, but zero if its text has lost the minus sign: otherwise the editor would show one.
double WithSignOf(const std::wstring& text, double value)
{
    return std::signbit(value) && text.front() != L'-' ? 0.0 : value;
}

}

void PlaceLengthText(const Vector3d& position, double modelLength,
                     const TemporaryDimensionStyle& style, DimensionDrawing& drawing,
                     TemporaryDimensionData::Entry& entry)
{
    const double value = style.ToShown(drawing.GetValue(modelLength));
    const std::wstring text = style.FormatLength(value);
    entry = {position, WithSignOf(text, value)};
    drawing.AddText(position, text);
}

void PlaceRadiusText(const Vector3d& position, double modelRadius,
                     const TemporaryDimensionStyle& style, DimensionDrawing& drawing,
                     TemporaryDimensionData::Entry& entry)
{
    const double value = style.ToShown(drawing.GetValue(modelRadius));
    const std::wstring text = style.FormatLength(value);
    entry = {position, WithSignOf(text, value)};
    drawing.AddText(position, L"R" + text);
}

void PlaceAngleText(const Vector3d& position, double degrees, const TemporaryDimensionStyle& style,
                    DimensionDrawing& drawing, TemporaryDimensionData::Entry& entry)
{
    const std::wstring text = style.FormatAngle(degrees);
    entry = {position, WithSignOf(text, degrees)};
    drawing.AddText(position, text + L"\u00B0");
}

void AvoidEarlierText(const TemporaryDimensionData::Entry& earlier, EditorPlacement& placement)
{
    if (earlier.value != 0.0 || !earlier.textPosition.isZero(0.0))
        placement.AvoidText(earlier.textPosition);
}

}
