#pragma once

#include "Model/Workspace.h"
#include "View/SketchView.h"

#include "Command/ActionManager.h"
#include "HostUi/DimensionInputController.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"

#include <QContextMenuEvent>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalSpy>

namespace vesk::test
{

/// Counts how often a widget is painted.
class PaintCounter final : public QObject
{
public:
    explicit PaintCounter(QWidget& widget)
    {
        QCoreApplication::processEvents();
        widget.installEventFilter(this);
    }

    int GetCount() const { return m_count; }
    void Reset() { m_count = 0; }

protected:
    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        m_count += pEvent->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int m_count = 0;
};

/// A drawing in a view of 407 x 307 pixels, black on white, one unit per pixel; the centre of the
/// picture is the centre of a pixel.
struct SketchViewFixture
{
    static constexpr int Width = 407;
    static constexpr int Height = 307;

    SketchViewFixture()
    {
        SetColours(Qt::white, Qt::black);
        view.resize(Width, Height);
        view.show();
        if (!QTest::qWaitForWindowExposed(&view, PatienceMs))
            qFatal("the view does not show");
        view.SetPixelsPerUnit(view.devicePixelRatioF());
    }

    void SetColours(const QColor& paper, const QColor& ink)
    {
        QPalette palette = view.palette();
        palette.setColor(QPalette::Base, paper);
        palette.setColor(QPalette::Text, ink);
        palette.setColor(QPalette::Highlight, QColor(0, 0, 255));
        view.setPalette(palette);
    }

    /// The pixel that contains a world point, before the camera moves.
    static QPoint PixelOf(int x, int y) { return {Width / 2 + x, Height / 2 - y}; }

    static void Send(QWidget& widget, QEvent::Type type, const QPointF& place,
                     Qt::MouseButton button, Qt::MouseButtons buttons,
                     Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QMouseEvent event(type, place, widget.mapToGlobal(place.toPoint()), button, buttons,
                          modifiers);
        QCoreApplication::sendEvent(&widget, &event);
    }

    QPointF PlaceOf(double x, double y) const
    {
        QPointF place;
        double depth = 0.0;
        view.GetCamera().WorldToScreen({x, y, 0}, place.rx(), place.ry(), depth);
        return place;
    }

    void PressAt(double x, double y, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        Send(view, QEvent::MouseButtonPress, PlaceOf(x, y), Qt::LeftButton, Qt::LeftButton,
             modifiers);
    }

    void DragTo(double x, double y, Qt::MouseButtons buttons = Qt::LeftButton,
                Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        Send(view, QEvent::MouseMove, PlaceOf(x, y), Qt::NoButton, buttons, modifiers);
    }

    void MoveTo(double x, double y, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        DragTo(x, y, Qt::NoButton, modifiers);
    }

    void ReleaseAt(double x, double y, Qt::MouseButton button = Qt::LeftButton)
    {
        Send(view, QEvent::MouseButtonRelease, PlaceOf(x, y), button, Qt::NoButton);
    }

    void Press(Qt::Key key, bool isAutoRepeat = false)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), isAutoRepeat);
        QCoreApplication::sendEvent(&view, &event);
    }

    void OpenMenuAt(double x, double y)
    {
        const QPoint place = PlaceOf(x, y).toPoint();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, view.mapToGlobal(place));
        QCoreApplication::sendEvent(&view, &event);
    }

    QImage Picture() { return view.grab().toImage().convertToFormat(QImage::Format_RGB32); }

    QColor ColourAt(int x, int y) { return Picture().pixelColor(PixelOf(x, y)); }

    HostFixture host;
    DimensionInputController input;
    Workspace workspace;
    SketchView view{workspace, input, nullptr};
};

}
