#include "TemporaryDimensionHandlersImpl/GeneratorRecorder.h"

#include "Dimension/TemporaryDimensionCommons.h"
#include "Graphics/IGraphicsNode.h"

#include <limits>

namespace vesk
{
namespace test
{
namespace
{

constexpr int NoLimit = std::numeric_limits<int>::max();

std::vector<GeneratorCall> calls;
int lineLimit = NoLimit;

class Line final : public IGraphicsLine
{
public:
    Line(const Vector3d& start, const Vector3d& end, GraphicsRole role)
        : m_start(start), m_end(end), m_role(role)
    {}

    void Accept(IGraphicsNodeVisitor& visitor) const override { visitor.Visit(*this); }
    const Vector3d& GetStart() const override { return m_start; }
    const Vector3d& GetEnd() const override { return m_end; }
    GraphicsRole GetRole() const override { return m_role; }

private:
    Vector3d m_start;
    Vector3d m_end;
    GraphicsRole m_role;
};

OwnerPtr<IGraphicsNodeGroup> Note(const std::string& name, const std::vector<Vector3d>& points,
                                  bool hasLines, const Coordinate3d& coordinate, InputState state,
                                  const TemporaryDimensionStyle& style, double pixel,
                                  const TemporaryDimensionData& data)
{
    OwnerPtr<IGraphicsNodeGroup> opResult = IGraphicsNodeGroup::Create();
    calls.push_back(
        {name, points, hasLines, coordinate, state, &style, pixel, &data, opResult.Get()});
    return opResult;
}

}

GeneratorRecorder::GeneratorRecorder()
{
    calls.clear();
}

GeneratorRecorder::~GeneratorRecorder()
{
    calls.clear();
    lineLimit = NoLimit;
}

const std::vector<GeneratorCall>& GeneratorRecorder::GetCalls() const
{
    return calls;
}

void GeneratorRecorder::SetLineLimit(int count)
{
    lineLimit = count;
}

}

using Group = OwnerPtr<IGraphicsNodeGroup>;
using Style = TemporaryDimensionStyle;
using Data = TemporaryDimensionData;

OwnerPtr<IGraphicsLine> IGraphicsLine::Create(const Vector3d& start, const Vector3d& end,
                                              GraphicsRole role)
{
    if (test::lineLimit-- <= 0)
        return nullptr;
    return MakeOwner<test::Line>(start, end, role);
}

Group TemporaryDimensionCommons::GenerateLengthDimension(const Vector3d& start, const Vector3d& end,
                                                         const Coordinate3d& coordinate,
                                                         InputState state, const Style& style,
                                                         double pixel, Data& data)
{
    return test::Note("length", {start, end}, false, coordinate, state, style, pixel, data);
}

Group TemporaryDimensionCommons::GenerateAngleDimension(const Vector3d& start, const Vector3d& end,
                                                        const Coordinate3d& coordinate,
                                                        InputState state, const Style& style,
                                                        double pixel, Data& data)
{
    return test::Note("angle", {start, end}, false, coordinate, state, style, pixel, data);
}

Group TemporaryDimensionCommons::GenerateRadiusDimensionFor3PtArc(
    const Vector3d& first, const Vector3d& second, const Vector3d& third,
    const Coordinate3d& coordinate, InputState state, const Style& style, double pixel, Data& data)
{
    return test::Note("radius of 3 points", {first, second, third}, false, coordinate, state, style,
                      pixel, data);
}

Group TemporaryDimensionCommons::GenerateCentralAngleDimensionFor3PtArc(
    const Vector3d& first, const Vector3d& second, const Vector3d& third,
    const Coordinate3d& coordinate, InputState state, const Style& style, double pixel, Data& data)
{
    return test::Note("central angle of 3 points", {first, second, third}, false, coordinate, state,
                      style, pixel, data);
}

Group TemporaryDimensionCommons::GenerateCentralAngleDimensionForCenterEndArc(
    const Vector3d& centre, const Vector3d& start, const Vector3d& end, const Vector3d& cursor,
    bool hasRadiusLines, const Coordinate3d& coordinate, InputState state, const Style& style,
    double pixel, Data& data)
{
    return test::Note("central angle", {centre, start, end, cursor}, hasRadiusLines, coordinate,
                      state, style, pixel, data);
}

Group TemporaryDimensionCommons::GenerateRadiusDimensionForCenterEndArc(
    const Vector3d& centre, const Vector3d& start, const Vector3d& end, bool hasRadiusLine,
    const Coordinate3d& coordinate, InputState state, const Style& style, double pixel, Data& data)
{
    return test::Note("radius", {centre, start, end}, hasRadiusLine, coordinate, state, style,
                      pixel, data);
}

Group TemporaryDimensionCommons::GenerateWidthDimension(const Vector3d& corner,
                                                        const Vector3d& opposite,
                                                        const Coordinate3d& coordinate,
                                                        InputState state, const Style& style,
                                                        double pixel, Data& data)
{
    return test::Note("width", {corner, opposite}, false, coordinate, state, style, pixel, data);
}

Group TemporaryDimensionCommons::GenerateHeightDimension(const Vector3d& corner,
                                                         const Vector3d& opposite,
                                                         const Coordinate3d& coordinate,
                                                         InputState state, const Style& style,
                                                         double pixel, Data& data)
{
    return test::Note("height", {corner, opposite}, false, coordinate, state, style, pixel, data);
}

Group TemporaryDimensionCommonsUtils::GenerateRotationDimension(
    const Vector3d& centre, const Vector3d& from, const Vector3d& to,
    const Coordinate3d& coordinate, InputState state, const Style& style, double pixel, Data& data)
{
    return test::Note("rotation", {centre, from, to}, false, coordinate, state, style, pixel, data);
}

}
