#pragma once

#include "Dimension/InputState.h"
#include "Dimension/TemporaryDimensionCommons.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Graphics/IGraphicsNode.h"
#include "Host/Dimension/GeneratorSetting.h"

#include <array>
#include <cstddef>

namespace vesk
{

/// What a generator is called with, besides its points.
struct GeneratorInput : GeneratorSetting
{
    InputState state = InputState::IS_None;
};

using GeneratorPoints = std::array<Vector3d, 4>;

/// One of the generators, called with as many of the points as it needs.
struct GeneratorKind
{
    const char* pName;
    InputState field;
    int pointCount;
    int cursorIndex; ///< The index of the cursor among the points.
    OwnerPtr<IGraphicsNodeGroup> (*pGenerate)(const GeneratorPoints& points, GeneratorInput& input);
};

/// All kinds; those of one handler are adjacent, in the order in which it calls them.
inline const std::array<GeneratorKind, 9>& GetGeneratorKinds()
{
    using C = TemporaryDimensionCommons;
    using P = const GeneratorPoints&;
    using I = GeneratorInput&;
    static const std::array<GeneratorKind, 9> s_kinds{{
        {"length", InputState::IS_Length, 2, 1,
         [](P p, I i) {
             return C::GenerateLengthDimension(p[0], p[1], i.coordinate, i.state, i.style, i.pixel,
                                               i.data);
         }},
        {"angle", InputState::IS_Angle, 2, 1,
         [](P p, I i) {
             return C::GenerateAngleDimension(p[0], p[1], i.coordinate, i.state, i.style, i.pixel,
                                              i.data);
         }},
        {"width", InputState::IS_Width, 2, 1,
         [](P p, I i) {
             return C::GenerateWidthDimension(p[0], p[1], i.coordinate, i.state, i.style, i.pixel,
                                              i.data);
         }},
        {"height", InputState::IS_Height, 2, 1,
         [](P p, I i) {
             return C::GenerateHeightDimension(p[0], p[1], i.coordinate, i.state, i.style, i.pixel,
                                               i.data);
         }},
        {"radius of three points", InputState::IS_Radius, 3, 2,
         [](P p, I i) {
             return C::GenerateRadiusDimensionFor3PtArc(p[0], p[1], p[2], i.coordinate, i.state,
                                                        i.style, i.pixel, i.data);
         }},
        {"central angle of three points", InputState::IS_CentralAngle, 3, 2,
         [](P p, I i) {
             return C::GenerateCentralAngleDimensionFor3PtArc(p[0], p[1], p[2], i.coordinate,
                                                              i.state, i.style, i.pixel, i.data);
         }},
        {"central angle about a centre", InputState::IS_CentralAngle, 4, 3,
         [](P p, I i) {
             return C::GenerateCentralAngleDimensionForCenterEndArc(
                 p[0], p[1], p[2], p[3], true, i.coordinate, i.state, i.style, i.pixel, i.data);
         }},
        {"radius about a centre", InputState::IS_Radius, 3, 2,
         [](P p, I i) {
             return C::GenerateRadiusDimensionForCenterEndArc(p[0], p[1], p[2], true, i.coordinate,
                                                              i.state, i.style, i.pixel, i.data);
         }},
        {"rotation", InputState::IS_CentralAngle, 3, 2,
         [](P p, I i) {
             return TemporaryDimensionCommonsUtils::GenerateRotationDimension(
                 p[0], p[1], p[2], i.coordinate, i.state, i.style, i.pixel, i.data);
         }},
    }};
    return s_kinds;
}

/// The kinds of one handler: the first, and the second if there is one.
struct GeneratorPair
{
    const char* pName;
    const GeneratorKind* pFirst;
    const GeneratorKind* pSecond;
};

inline const std::array<GeneratorPair, 5>& GetGeneratorPairs()
{
    const std::array<GeneratorKind, 9>& kinds = GetGeneratorKinds();
    static const std::array<GeneratorPair, 5> s_pairs{{
        {"segment", &kinds[0], &kinds[1]},
        {"rectangle", &kinds[2], &kinds[3]},
        {"arc through three points", &kinds[4], &kinds[5]},
        {"arc about a centre", &kinds[6], &kinds[7]},
        {"rotation", &kinds[8], nullptr},
    }};
    return s_pairs;
}

}
