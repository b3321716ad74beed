#pragma once

#include "Line.h"

#include <HostUi/DrawingView.h>

#include <cstddef>
#include <vector>

/// Shows the lines that have been drawn in it.
class LineView final : public vesk::DrawingView
{
public:
    using DrawingView::DrawingView;

    void Add(const Line& line);

protected:
    std::size_t PaintModel(QPainter& painter, const QRectF& area, std::size_t begin) override;

private:
    std::vector<Line> m_lines;
};
