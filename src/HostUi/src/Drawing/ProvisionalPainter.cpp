#include "HostUi/ProvisionalPainter.h"

#include "HostUi/Contrast.h"
#include "HostUi/QtText.h"
#include "HostUi/ViewPixel.h"
#include "Input/TextCollector.h"
#include "View/IModelView.h"

#include <QPainter>
#include <QPalette>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace vesk
{
namespace
{

struct Pen
{
    QColor onLight;
    QColor onDark;
    double width;
};

/// In the order of GraphicsRole.
const Pen& PenOf(GraphicsRole role)
{
    static const Pen s_pens[] = {
        {QColor(0x1f, 0x6f, 0xc5), QColor(0x6c, 0xb6, 0xff), 1.6},
        {QColor(0x6b, 0x75, 0x80), QColor(0x9a, 0xa5, 0xb1), 1.0},
        {QColor(0x1f, 0x6f, 0xc5), QColor(0x6c, 0xb6, 0xff), 1.0},
        {QColor(0xb8, 0x6e, 0x00), QColor(0xff, 0xc1, 0x4d), 1.4},
    };
    return s_pens[static_cast<int>(role)];
}

/// Enough chords to look like an arc; capped for a huge arc, of which little is visible, so that
/// painting stays fast.
int CountChords(double radiusPixels, double sweep)
{
    constexpr double Deviation = 0.1;
    constexpr double GreatestStep = 0.3;
    constexpr double Most = 5000.0;
    const double step = std::min(GreatestStep, std::sqrt(8.0 * Deviation / radiusPixels));
    return 1 + static_cast<int>(std::min(Most, std::abs(sweep) / step));
}

}

ProvisionalPainter::ProvisionalPainter(QPainter& painter, const IModelView& modelView,
                                       const QPalette& palette)
    : m_painter(painter), m_modelView(modelView), m_palette(palette)
{}

void ProvisionalPainter::Visit(const IGraphicsLine& line)
{
    SetPen(line.GetRole());
    m_painter.drawLine(ToPixel(m_modelView, line.GetStart()), ToPixel(m_modelView, line.GetEnd()));
}

void ProvisionalPainter::Visit(const IGraphicsArc& arc)
{
    const int steps = CountChords(arc.GetRadius() / m_modelView.GetWorldPerPixel(), arc.GetSweep());
    QPolygonF points;
    for (int i = 0; i <= steps; ++i)
    {
        const double angle = arc.GetSweep() * i / steps;
        points << ToPixel(m_modelView,
                          arc.GetCentre() + arc.GetRadius() * (std::cos(angle) * arc.GetXAxis() +
                                                               std::sin(angle) * arc.GetYAxis()));
    }
    SetPen(arc.GetRole());
    m_painter.drawPolyline(points);
}

void ProvisionalPainter::Visit(const IGraphicsText& text)
{
    const QRectF box = TextCollector(m_modelView, m_painter.fontMetrics()).BoxOf(text);
    m_painter.fillRect(box, m_palette.color(QPalette::Base));
    SetPen(text.GetRole());
    m_painter.drawText(box, Qt::AlignCenter, ToQString(text.GetText()));
}

void ProvisionalPainter::SetPen(GraphicsRole role)
{
    const Pen& pen = PenOf(role);
    const bool isDark = m_palette.color(QPalette::Base).lightness() < 128;
    m_painter.setPen(QPen(Legible(isDark ? pen.onDark : pen.onLight, m_palette), pen.width));
}

}
