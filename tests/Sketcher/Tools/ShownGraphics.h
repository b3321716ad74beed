#pragma once

#include "Geometry/Vector3d.h"
#include "Graphics/IGraphicsNode.h"

#include <vector>

/// The lines and the arcs of a picture, each in order.
class ShownGraphics final : public vesk::IGraphicsNodeVisitor
{
public:
    struct Line
    {
        vesk::Vector3d start;
        vesk::Vector3d end;
    };

    struct Arc
    {
        vesk::Vector3d centre;
        vesk::Vector3d start;
        double radius;
        double sweep;
    };

    explicit ShownGraphics(const vesk::IGraphicsNodeGroup& group) { group.Accept(*this); }

    void Visit(const vesk::IGraphicsLine& line) override
    {
        lines.push_back({line.GetStart(), line.GetEnd()});
    }

    void Visit(const vesk::IGraphicsArc& arc) override
    {
        const vesk::Vector3d start = arc.GetCentre() + arc.GetRadius() * arc.GetXAxis();
        arcs.push_back({arc.GetCentre(), start, arc.GetRadius(), arc.GetSweep()});
    }

    void Visit(const vesk::IGraphicsText&) override {}

    std::vector<Line> lines;
    std::vector<Arc> arcs;
};
