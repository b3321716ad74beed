#pragma once

#include "HostUi/HostUiExport.h"
#include "View/IUiView.h"
#include "View/ModelView.h"

#include <QPixmap>
#include <QPointer>
#include <QWidget>

#include <optional>

namespace vesk
{

class DimensionInputController;

/// The base of drawing views: camera, keys and clicks of the running action, provisional graphics.
///
/// The middle button pans, the wheel zooms about the cursor. What the model looks like is the
/// derived class's.
class VESK_HOST_UI_API DrawingView : public QWidget, public IUiView
{
    Q_OBJECT

public:
    /// `id` is unique among the views. The controller (not owned) takes the keys of dimension
    /// inputs.
    DrawingView(std::uint32_t id, DimensionInputController& input, QWidget* pParent);
    ~DrawingView() override;

    std::uint32_t GetId() const override;
    WindowId GetWindowId() const override;
    IModelView* GetModelView() const override;
    void SetViewText(const std::wstring& text) override;
    void Activate() override;
    void Redraw() override;

    const QString& GetViewText() const { return m_viewText; }
    const ModelView& GetCamera() const { return m_camera; }

    /// Shows the box between two world points.
    void Fit(const Vector3d& corner, const Vector3d& oppositeCorner);

    /// Magnifies by a factor about the middle of the view.
    void Magnify(double factor);

    /// Shows a unit of the model in that many device pixels; the middle of the view stays.
    void SetPixelsPerUnit(double devicePixels);

    /// Says once more where the cursor is, if it is in the view: what it means has changed.
    void TellCursor();

signals:
    void viewTextChanged(const QString& text);

    /// The cursor is at another world point, since it moved or the camera did; or it left the view.
    void cursorMoved(double x, double y);
    void cursorLeft();

protected:
    /// Paints what the view shows below the provisional graphics. The painter draws in pixels. What
    /// is painted is kept while only the cursor and the provisional graphics move: until
    /// UpdateModel is called, or the camera, the size or the palette changes.
    virtual void PaintModel(QPainter& painter) = 0;

    /// Has the model painted anew: it looks different now.
    void UpdateModel();

    /// Paints over everything else.
    virtual void PaintOverlay(QPainter&) {}

    /// The user clicked, or pressed Escape, while no action runs.
    virtual void OnFreeClick(const Vector3d& /*world*/, Qt::KeyboardModifiers) {}
    virtual void OnFreeEscape() {}

    /// The pixel position of a world point.
    QPointF ToPixel(const Vector3d& world) const;

    void changeEvent(QEvent* pEvent) override;
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

    void OnCameraChanged();
    void OnClick(const QMouseEvent& event);
    const QPixmap& GetModelPicture();

    std::uint32_t m_id;
    DimensionInputController& m_input;
    mutable ModelView m_camera;
    QString m_viewText;
    Drag m_drag = Drag::None;
    std::optional<QPointF> m_cursor; ///< In pixels; nothing while it is elsewhere.
    QPointF m_dragPosition;
    QPointer<QWidget> m_pWatchedWindow;
    bool m_hasScale = false;

    /// The model as it was painted; null when it must be painted anew.
    QPixmap m_modelPicture;
};

}
