#pragma once

#include "Dimension/InputState.h"
#include "Dimension/TemporaryDimensionData.h"
#include "Dimension/TemporaryDimensionStyle.h"
#include "Geometry/Coordinate3d.h"

namespace vesk
{

constexpr double Degree = 3.14159265358979323846 / 180;

/// What a generator is called with besides its points and the field being typed, and the values
/// that it leaves.
struct GeneratorSetting
{
    Coordinate3d coordinate;
    TemporaryDimensionStyle style;
    double pixel = 1.0;
    TemporaryDimensionData data;
};

/// The same for a generator of an arc.
struct ArcGeneratorSetting : GeneratorSetting
{
    double GetRadius() const { return data[InputState::IS_Radius].value; }
    double GetAngle() const { return data[InputState::IS_CentralAngle].value; }
    Vector3d GetRadiusPosition() const { return data[InputState::IS_Radius].textPosition; }
    Vector3d GetAnglePosition() const { return data[InputState::IS_CentralAngle].textPosition; }
};

}
