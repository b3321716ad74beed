#include "LineView.h"

#include <QPainter>

void LineView::Add(const Line& line)
{
    m_lines.push_back(line);
    ExtendModel();
}

/// Paints one line at a time.
std::size_t LineView::PaintModel(QPainter& painter, const QRectF&, std::size_t begin)
{
    if (begin == m_lines.size())
        return begin;
    painter.setPen(palette().color(QPalette::Text));
    painter.drawLine(ToPixel(m_lines[begin].start), ToPixel(m_lines[begin].end));
    return begin + 1;
}
