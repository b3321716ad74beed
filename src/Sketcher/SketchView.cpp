#include "SketchView.h"

#include "Sketch.h"

#include <QPainter>

#include <cmath>

using vesk::Vector3d;

namespace
{

/// The least of 1, 2, 5, 10, 20 ... that is at least `pixels` wide.
double GridStep(double worldPerPixel, double pixels)
{
    const double least = worldPerPixel * pixels;
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0})
    {
        if (factor * power >= least)
            return factor * power;
    }
    return 10.0 * power;
}

QColor Mix(const QColor& a, const QColor& b, double share)
{
    return QColor::fromRgbF(a.redF() + (b.redF() - a.redF()) * share,
                            a.greenF() + (b.greenF() - a.greenF()) * share,
                            a.blueF() + (b.blueF() - a.blueF()) * share);
}

}

SketchView::SketchView(const Sketch& sketch, vesk::DimensionInputController& input,
                       QWidget* pParent)
    : DrawingView(1, input, pParent), m_sketch(sketch)
{
    setObjectName(QStringLiteral("SketchView"));
    connect(&sketch, &Sketch::changed, this, qOverload<>(&QWidget::update));
}

void SketchView::ZoomAll()
{
    if (m_sketch.GetEntities().empty())
        return;
    Vector3d low = m_sketch.GetEntities().front().start;
    Vector3d high = low;
    for (const Entity& entity : m_sketch.GetEntities())
    {
        low = low.cwiseMin(entity.start).cwiseMin(entity.end);
        high = high.cwiseMax(entity.start).cwiseMax(entity.end);
    }
    Fit(low, high);
}

void SketchView::PaintModel(QPainter& painter)
{
    PaintGrid(painter);
    PaintAxes(painter);
    painter.setPen(QPen(palette().color(QPalette::Text), 1.4, Qt::SolidLine, Qt::RoundCap));
    for (const Entity& entity : m_sketch.GetEntities())
        painter.drawLine(ToPixel(entity.start), ToPixel(entity.end));
}

void SketchView::PaintGrid(QPainter& painter) const
{
    constexpr double LeastPixels = 8.0;
    const QColor paper = palette().color(QPalette::Base);
    const QColor ink = palette().color(QPalette::Text);
    const double step = GridStep(GetCamera().GetWorldPerPixel(), LeastPixels);
    PaintGridLines(painter, step, Mix(paper, ink, 0.06));
    PaintGridLines(painter, step * 10.0, Mix(paper, ink, 0.14));
}

void SketchView::PaintGridLines(QPainter& painter, double step, const QColor& color) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(color, 0));
    const Vector3d topLeft = GetCamera().ScreenToWorld(0, 0);
    const Vector3d bottomRight = GetCamera().ScreenToWorld(width(), height());
    for (double i = std::ceil(topLeft.x() / step); i * step <= bottomRight.x(); ++i)
    {
        const double x = ToPixel({i * step, 0.0, 0.0}).x();
        painter.drawLine(QPointF(x, 0), QPointF(x, height()));
    }
    for (double i = std::ceil(bottomRight.y() / step); i * step <= topLeft.y(); ++i)
    {
        const double y = ToPixel({0.0, i * step, 0.0}).y();
        painter.drawLine(QPointF(0, y), QPointF(width(), y));
    }
    painter.restore();
}

void SketchView::PaintAxes(QPainter& painter) const
{
    const QPointF origin = ToPixel(Vector3d::Zero());
    painter.setPen(QPen(QColor(0xd0, 0x6a, 0x62, 150), 1.0));
    painter.drawLine(QPointF(0, origin.y()), QPointF(width(), origin.y()));
    painter.setPen(QPen(QColor(0x5f, 0xa8, 0x6a, 150), 1.0));
    painter.drawLine(QPointF(origin.x(), 0), QPointF(origin.x(), height()));
}
