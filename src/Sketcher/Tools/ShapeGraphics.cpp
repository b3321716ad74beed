#include "Tools/ShapeGraphics.h"

#include "Model/ShapePieces.h"

#include "Graphics/IGraphicsNode.h"

using namespace vesk;

namespace
{

constexpr GraphicsRole Role = GraphicsRole::RubberBand;

OwnerPtr<IGraphicsNode> MakeNode(const LineShape& line)
{
    return IGraphicsLine::Create(line.start, line.end, Role);
}

OwnerPtr<IGraphicsNode> MakeNode(const ArcShape& arc)
{
    return IGraphicsArc::Create(arc.centre, (arc.start - arc.centre).normalized(),
                                StartTangent(arc), arc.radius, SweepOf(arc), Role);
}

}

void AddRubberBand(IGraphicsNodeGroup& group, const Shape& shape)
{
    VisitPieces(shape, [&group](const auto& piece) { group.AddChild(MakeNode(piece)); });
}

OwnerPtr<IGraphicsNodeGroup> MakeRubberBand(const Shape& shape)
{
    OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();
    AddRubberBand(*opGroup, shape);
    return opGroup;
}
