#pragma once

#include "Dimension/InputState.h"
#include "Geometry/Coordinate3d.h"
#include "Geometry/Vector3d.h"

#include <string>
#include <vector>

namespace vesk
{

class IGraphicsNode;
class TemporaryDimensionStyle;
struct TemporaryDimensionData;

}

namespace vesk::test
{

/// One call of a generator of dimensions.
struct GeneratorCall
{
    std::string name;
    std::vector<Vector3d> points;
    bool hasLines; ///< False where a generator is not told.
    Coordinate3d coordinate;
    InputState state;
    const TemporaryDimensionStyle* pStyle;
    double pixel;
    const TemporaryDimensionData* pData;
    const IGraphicsNode* pResult;
};

/// Notes the calls of generators while it lives. A program that links it has these generators
/// instead of the host's, which the library then calls as well.
class GeneratorRecorder
{
public:
    GeneratorRecorder();
    ~GeneratorRecorder();
    GeneratorRecorder(const GeneratorRecorder&) = delete;
    GeneratorRecorder& operator=(const GeneratorRecorder&) = delete;

    const std::vector<GeneratorCall>& GetCalls() const;

    /// Has the creation of lines fail after so many.
    void SetLineLimit(int count);
};

}
