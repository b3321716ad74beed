#pragma once

#include "View/MouseSelection.h"

#include "HostUi/DrawingView.h"

struct Entity;
struct Workspace;

/// Shows the drawing over a grid. With no action running the mouse selects; Escape cancels a drag,
/// else it clears the selection. While the mouse moves with Shift, directions are held to multiples
/// of 15 degrees.
class SketchView final : public vesk::DrawingView
{
    Q_OBJECT

public:
    /// Workspace and controller are not owned and outlive the view.
    SketchView(Workspace& workspace, vesk::DimensionInputController& input, QWidget* pParent);

    /// Shows all that is visible of the drawing.
    void ZoomAll();

signals:
    /// With no action running: the user wants the last tool again, or the menu of what is selected,
    /// at a point of the screen.
    void repeatRequested();
    void menuRequested(const QPoint& position);

protected:
    void PaintModel(QPainter& painter) override;
    void PaintOverlay(QPainter& painter) override;
    void OnFreeClick(const vesk::Vector3d& world, Qt::KeyboardModifiers modifiers) override;
    void OnFreeEscape() override;
    void OnFreeConfirm() override;

    void contextMenuEvent(QContextMenuEvent* pEvent) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;

private:
    void DropPress();
    void SelectBelow(const QPoint& pixel);
    void PaintGrid(QPainter& painter) const;
    void PaintGridLines(QPainter& painter, double step, const QColor& color) const;
    void PaintAxes(QPainter& painter) const;
    void PaintEntities(QPainter& painter) const;
    void PaintSelected(QPainter& painter, const Entity& entity) const;
    QRectF GetPaintedRect() const;

    Workspace& m_workspace;

    MouseSelection m_mouse;
};
