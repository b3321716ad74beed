#pragma once

#include "View/MouseSelection.h"
#include "View/VisibleEntities.h"

#include "Command/ActionManager.h"
#include "HostUi/DrawingView.h"

#include <QTimer>

#include <cstddef>

struct Entity;
struct Workspace;

/// Shows the drawing over a grid. With no action running the mouse selects; Escape cancels a drag,
/// else it clears the selection. While the mouse moves with Shift, directions are held to multiples
/// of 15 degrees.
///
/// The cursor says what a click does: a hand picks the entity below it, a cross sets a point, an
/// arrow begins a box, and a forbidding sign does nothing.
class SketchView final : public vesk::DrawingView, public vesk::IActionObserver
{
    Q_OBJECT

public:
    /// Workspace and controller are not owned and outlive the view.
    SketchView(Workspace& workspace, vesk::DimensionInputController& input, QWidget* pParent);
    ~SketchView() override;

    /// Shows all that is visible of the drawing.
    void ZoomAll();

    /// The entity under the cursor that could be picked; 0 if there is none.
    int GetPointed() const { return m_pointed; }

    void OnActionChanged() override;

    /// What panes leave to the drawing: otherwise they give way.
    QSize minimumSizeHint() const override { return {400, 300}; }

signals:
    /// The cursor points at another entity, or that entity has changed.
    void pointedChanged();

    /// With no action running: the user wants the last tool again, or the menu of what is selected,
    /// at a point of the screen.
    void repeatRequested();
    void menuRequested(const QPoint& position);

protected:
    std::size_t PaintModel(QPainter& painter, const QRectF& area, std::size_t begin) override;
    void PaintOverlay(QPainter& painter) override;
    void OnFreeClick(const vesk::Vector3d& world, Qt::KeyboardModifiers modifiers) override;
    void OnFreeEscape() override;
    void OnFreeConfirm() override;
    double GetCursorStep() const override;
    QCursor GetRestingCursor() const override;

    void contextMenuEvent(QContextMenuEvent* pEvent) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;

private:
    void OnSketchChanged();
    void OnSelectionChanged();
    void OnCursorMoved(double x, double y);
    void SetPointed(int entity);
    void DropPress();
    vesk::Vector3d WorldOf(const QMouseEvent& event) const;
    void SelectBelow(const QPoint& pixel);
    void PaintGrid(QPainter& painter) const;
    void PaintGridLines(QPainter& painter, double step, const QColor& color) const;
    void PaintAxes(QPainter& painter) const;
    Area ToWorld(const QRectF& pixels) const;
    std::size_t PaintSelection(QPainter& painter, const QRectF& visible, std::size_t begin);
    int PaintEntities(QPainter& painter, const QRectF& visible, int first);
    void PaintSelected(QPainter& painter, const QRectF& visible, const Entity& entity) const;

    Workspace& m_workspace;
    VisibleEntities m_visible;

    MouseSelection m_mouse;
    int m_pointed = 0;
    unsigned m_shownRevision = 0; ///< Of the sketch.
    unsigned m_shownShapes = 0;   ///< The revision of its shapes.
    QTimer m_lookAgain;
};
