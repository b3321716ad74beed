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

/// One call of a dimension generator.
struct GeneratorCall
{
    std::string name;
    std::vector<Vector3d> points;
    bool hasLines; ///< False if a generator is not told.
    Coordinate3d coordinate;
    InputState state;
    const TemporaryDimensionStyle* pStyle;
    double pixel;
    const TemporaryDimensionData* pData;
    const IGraphicsNode* pResult;
};

/// Records the calls of generators during its lifetime. A program that links it has these
/// generators instead of those of the host, and the library calls them too.
class GeneratorRecorder
{
public:
    GeneratorRecorder();
    ~GeneratorRecorder();
    GeneratorRecorder(const GeneratorRecorder&) = delete;
    GeneratorRecorder& operator=(const GeneratorRecorder&) = delete;

    const std::vector<GeneratorCall>& GetCalls() const;

    /// Makes the creation of lines fail after this many.
    void SetLineLimit(int count);
};

}
