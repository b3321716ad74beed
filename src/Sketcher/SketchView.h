#pragma once

#include "HostUi/DrawingView.h"

class Sketch;

/// Shows the drawing over a grid.
class SketchView final : public vesk::DrawingView
{
    Q_OBJECT

public:
    /// Sketch and controller are not owned and outlive the view.
    SketchView(const Sketch& sketch, vesk::DimensionInputController& input, QWidget* pParent);

    /// Shows the whole drawing.
    void ZoomAll();

protected:
    void PaintModel(QPainter& painter) override;

private:
    void PaintGrid(QPainter& painter) const;
    void PaintGridLines(QPainter& painter, double step, const QColor& color) const;
    void PaintAxes(QPainter& painter) const;

    const Sketch& m_sketch;
};
