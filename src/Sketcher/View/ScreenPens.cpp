#include "View/ScreenPens.h"

#include "Model/Sketch.h"

#include "HostUi/Contrast.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

double WidthOnScreen(const LineWidth& width)
{
    constexpr double MillimetresPerPixel = 0.25;
    return std::max(1.0, std::round(width.millimetres / MillimetresPerPixel));
}

ScreenPens::ScreenPens(const Sketch& sketch, const QPalette& palette)
    : m_sketch(sketch), m_palette(palette)
{}

const QPen* ScreenPens::Find(const Pen& pen)
{
    if (!m_last.has_value() || !(*m_last == pen))
    {
        m_last = pen;
        m_found.reset();
        const Layer* pLayer = m_sketch.FindLayer(pen.layer);
        if (pLayer != nullptr && pLayer->isVisible)
            m_found = Make(pen, *pLayer);
    }
    return m_found.has_value() ? &*m_found : nullptr;
}

QPen ScreenPens::Make(const Pen& pen, const Layer& layer) const
{
    const int index = pen.colour != 0 ? pen.colour : layer.colour;
    const QColor& colour = LineColours()[static_cast<std::size_t>(index)].colour;
    // Round caps take three times as long to paint.
    return {colour.isValid() ? vesk::Legible(colour, m_palette) : m_palette.color(QPalette::Text),
            WidthOnScreen(LineWidths()[static_cast<std::size_t>(pen.width)]),
            LineStyles()[static_cast<std::size_t>(pen.style)].style, Qt::SquareCap};
}
