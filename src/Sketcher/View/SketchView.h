#pragma once

#include "View/MouseSelection.h"

#include "HostUi/DrawingView.h"

struct Entity;
struct Workspace;

/// Shows the drawing over a grid. With no action running the mouse selects; Escape cancels a drag,
/// else it clears the selection.
class SketchView final : public vesk::DrawingView
{
    Q_OBJECT

public:
    /// Workspace and controller are not owned and outlive the view.
    SketchView(Workspace& workspace, vesk::DimensionInputController& input, QWidget* pParent);

    /// Shows all that is visible of the drawing.
    void ZoomAll();

protected:
    void PaintModel(QPainter& painter) override;
    void PaintOverlay(QPainter& painter) override;
    void OnFreeClick(const vesk::Vector3d& world, Qt::KeyboardModifiers modifiers) override;
    void OnFreeEscape() override;

    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;

private:
    void DropPress();
    void PaintGrid(QPainter& painter) const;
    void PaintGridLines(QPainter& painter, double step, const QColor& color) const;
    void PaintAxes(QPainter& painter) const;
    void PaintEntities(QPainter& painter) const;
    void PaintSelected(QPainter& painter, const Entity& entity) const;
    QRectF GetPaintedRect() const;

    Workspace& m_workspace;

    MouseSelection m_mouse;
};
