#pragma once

#include "HostUi/HostUiExport.h"
#include "View/IUiView.h"
#include "View/ModelView.h"

#include <QCursor>
#include <QEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <cstddef>
#include <memory>
#include <optional>

namespace vesk
{

class DimensionInputController;
class ModelPicture;

/// Base of drawing views: camera, keys and clicks of the running action, provisional graphics.
///
/// The middle button pans, the wheel zooms about the cursor. The derived class paints the model.
///
/// The arrow keys move the cursor, from grid point to grid point, with Shift by a tenth of that;
/// the picture follows it. From then on Space is a click there, until Escape or until the mouse
/// moves. Shift+Space presses, and the next Space lets go: the arrows between them drag. Ctrl with
/// an arrow moves the picture, the keys for zooming magnify it.
class VESK_HOST_UI_API DrawingView : public QWidget, public IUiView
{
    Q_OBJECT

public:
    /// `id` is unique among the views. The controller (not owned) handles the keys of dimension
    /// inputs.
    DrawingView(std::uint32_t id, DimensionInputController& input, QWidget* pParent);
    ~DrawingView() override;

    std::uint32_t GetId() const override;
    WindowId GetWindowId() const override;
    IModelView* GetModelView() const override;
    void SetViewText(const std::wstring& text) override;
    void Activate() override;

    /// The least size in which dimensions keep editor and cursor apart.
    QSize minimumSizeHint() const override;
    void Redraw() override;

    /// The text shown last by SetViewText: what the running action expects.
    const QString& GetViewText() const { return m_viewText; }

    /// Where the view looks from; changes with each zoom and pan.
    const ModelView& GetCamera() const { return m_camera; }

    /// Shows the box between two world points.
    void Fit(const Vector3d& corner, const Vector3d& oppositeCorner);

    /// Magnifies by a factor about the centre of the view.
    void Magnify(double factor);

    /// Shows one model unit as that many device pixels; the centre of the view stays.
    void SetPixelsPerUnit(double devicePixels);

    /// From now on each painting shows the whole model, however long that takes: for a picture of
    /// the view.
    void PaintAtOnce() { m_isPaintedAtOnce = true; }

    /// True if the view was painted since its last change and shows the whole model as it is.
    bool IsWhole() const;

    /// True from an arrow key on until Escape or a move of the mouse: the arrow keys move the
    /// cursor.
    bool IsWalking() const { return m_walked.has_value(); }

    /// The world point to which they have moved it; only while `IsWalking`.
    const Vector3d& GetWalked() const { return *m_walked; }

    /// Emits cursorMoved again if the cursor is in the view, because what it points at has changed.
    void TellCursor();

signals:
    /// Another text is shown; empty if there is none any more.
    void viewTextChanged(const QString& text);

    /// The cursor is at another world point because it or the camera moved; or it left the view.
    void cursorMoved(double x, double y);

    /// The cursor left the view.
    void cursorLeft();

protected:
    /// Paints a part of what is below the provisional graphics in an area, in pixels, from a
    /// position on, and returns the position after it; the same one if nothing is left. Positions
    /// begin with 0, and mean the same for all areas and cameras. A part takes a few milliseconds
    /// at most: many are painted at once, and between these events are handled. What lies outside
    /// the area is not seen and need not be painted.
    ///
    /// The result is cached, so that moving the cursor or the provisional graphics does not repaint
    /// it, until UpdateModel is called or the size or the palette changes. When the camera changes
    /// and painting takes long, the cached picture is moved and scaled, what it lacks at its edges
    /// is painted, and the whole is painted again as soon as there is time.
    virtual std::size_t PaintModel(QPainter& painter, const QRectF& area, std::size_t begin) = 0;

    /// Repaints the model after its appearance changed. What it looked like before is shown until
    /// all is painted.
    void UpdateModel();

    /// Declares that the model has a top, from a position on, that changes more often than what
    /// lies before it; UpdateTop repaints the top alone. The rest is kept, if painting it takes
    /// long.
    void SetTop(std::size_t position);

    /// Repaints the top alone, if what lies below it is painted; otherwise everything.
    void UpdateTop();

    /// Paints what was added to the model after the last position.
    void ExtendModel();

    /// Paints over everything else.
    virtual void PaintOverlay(QPainter&) {}

    /// The cursor while nothing is dragged; UpdateCursor shows another one.
    virtual QCursor GetRestingCursor() const { return Qt::CrossCursor; }

    /// Shows the cursor that GetRestingCursor returns now.
    void UpdateCursor();

    /// The user clicked, or pressed Escape, while no action was running.
    virtual void OnFreeClick(const Vector3d& /*world*/, Qt::KeyboardModifiers) {}

    /// The user pressed Escape while no action was running and no input was open.
    virtual void OnFreeEscape() {}

    /// The distance between the grid points on which the arrow keys put the cursor, in model units.
    virtual double GetCursorStep() const;

    /// The user pressed Return, Enter or, if it is no click, Space while no action was running. A
    /// key held down counts once.
    virtual void OnFreeConfirm() {}

    /// Passes the cursor, if it is in the view, to the running action again, because what it means
    /// has changed.
    void PassCursor();

    /// The pixel position of a world point.
    QPointF ToPixel(const Vector3d& world) const;

    void changeEvent(QEvent* pEvent) override;
    bool event(QEvent* pEvent) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    bool focusNextPrevChild(bool isNext) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void leaveEvent(QEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;
    void wheelEvent(QWheelEvent* pEvent) override;

private:
    /// What the mouse is doing.
    enum class Drag
    {
        None,
        Pan,
    };

    bool MovePicture(const QKeyEvent& event);
    bool Walk(const QKeyEvent& event);
    bool IsPick(const QKeyEvent& event) const;
    void Pick(Qt::KeyboardModifiers modifiers);
    void EndWalk();
    void BringIntoView(const Vector3d& world);
    void SendMouse(QEvent::Type type, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    Vector3d ToWorld(const QPointF& pixel) const;
    void OnCameraChanged();
    QTransform TakePictureMove();
    void FollowCamera();
    void OnClick(const QMouseEvent& event);
    void DropPicture();
    QPixmap MakeGround() const;
    void PaintSlice();
    void PaintSlices();
    void OnSliceDue();

    std::uint32_t m_id;
    DimensionInputController& m_input;
    mutable ModelView m_camera;
    QString m_viewText;
    Drag m_drag = Drag::None;
    std::optional<QPointF> m_cursor;  ///< In pixels; nothing while it is elsewhere.
    std::optional<Vector3d> m_walked; ///< Where the arrow keys have put the cursor.
    bool m_isButtonHeld = false;      ///< By Shift+Space.
    QPoint m_restingMouse;            ///< Where the mouse was then, on the screen.
    QPointF m_dragPosition;
    const QEvent* m_pForwarded = nullptr; ///< What the view passes to a field; not owned.
    QPointer<QWidget> m_pWatchedWindow;
    bool m_hasScale = false;
    bool m_isPaintedAtOnce = false;
    const std::unique_ptr<ModelPicture> m_pPicture;
    ModelView m_pictureCamera;    ///< From where the picture shows the model.
    bool m_isCameraMoved = false; ///< Since then.
    QTimer m_nextSlice;
};

}
