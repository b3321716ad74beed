#pragma once

#include "Graphics/IGraphicsNode.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace vesk
{

/// The nodes of a group, which must outlive it, sorted by kind.
class DrawnNodes final : public IGraphicsNodeVisitor
{
public:
    explicit DrawnNodes(const IGraphicsNode& node) { node.Accept(*this); }

    void Visit(const IGraphicsLine& line) override { lines.push_back(&line); }
    void Visit(const IGraphicsArc& arc) override { arcs.push_back(&arc); }
    void Visit(const IGraphicsText& text) override { texts.push_back(&text); }

    bool HasLine(const Vector3d& start, const Vector3d& end) const
    {
        constexpr double Tolerance = 1e-6;
        return std::any_of(lines.begin(), lines.end(), [&](const IGraphicsLine* pLine) {
            return (pLine->GetStart() - start).norm() < Tolerance &&
                   (pLine->GetEnd() - end).norm() < Tolerance;
        });
    }

    /// Whether there is an arc about a centre that starts in a direction and sweeps `sweep`
    /// radians.
    bool HasArc(const Vector3d& centre, double radius, const Vector3d& from, double sweep) const
    {
        constexpr double Tolerance = 1e-6;
        return std::any_of(arcs.begin(), arcs.end(), [&](const IGraphicsArc* pArc) {
            return (pArc->GetCentre() - centre).norm() < Tolerance &&
                   std::abs(pArc->GetRadius() - radius) < Tolerance &&
                   (pArc->GetXAxis() - from).norm() < Tolerance &&
                   std::abs(pArc->GetSweep() - sweep) < Tolerance;
        });
    }

    bool AreAll(GraphicsRole role) const
    {
        const auto has = [role](const auto* pNode) { return pNode->GetRole() == role; };
        return std::all_of(lines.begin(), lines.end(), has) &&
               std::all_of(arcs.begin(), arcs.end(), has) &&
               std::all_of(texts.begin(), texts.end(), has);
    }

    /// Whether every coordinate and every dimension is finite.
    bool AreNumbers() const
    {
        return std::all_of(lines.begin(), lines.end(),
                           [](const IGraphicsLine* pLine) {
                               return pLine->GetStart().allFinite() && pLine->GetEnd().allFinite();
                           }) &&
               std::all_of(arcs.begin(), arcs.end(),
                           [](const IGraphicsArc* pArc) {
                               return pArc->GetCentre().allFinite() &&
                                      pArc->GetXAxis().allFinite() &&
                                      pArc->GetYAxis().allFinite() &&
                                      std::isfinite(pArc->GetRadius()) &&
                                      std::isfinite(pArc->GetSweep());
                           }) &&
               std::all_of(texts.begin(), texts.end(), [](const IGraphicsText* pText) {
                   return pText->GetPosition().allFinite();
               });
    }

    std::vector<const IGraphicsLine*> lines;
    std::vector<const IGraphicsArc*> arcs;
    std::vector<const IGraphicsText*> texts;
};

}
