#pragma once

#include "Geometry/Vector3d.h"

#include <Qt>

#include <optional>

class QPainter;
struct Workspace;

namespace vesk
{
class DrawingView;
}

/// Selects with the left button of the mouse.
///
/// A press that is released where it began selects what is under it. A drag to the right selects
/// what is wholly inside its box, a drag to the left what is inside or touched. With Ctrl a click
/// adds to the selection or takes out of it, and a drag adds. Each is one record of the journal.
class MouseSelection final
{
public:
    /// Workspace and view are not owned and outlive it.
    MouseSelection(Workspace& workspace, const vesk::DrawingView& view);

    /// True from the press to the release, unless it was dropped.
    bool IsPressed() const { return m_press.has_value(); }

    void Press(const vesk::Vector3d& world, Qt::KeyboardModifiers modifiers);
    void MoveTo(const vesk::Vector3d& world);

    /// Selects, if there was a press.
    void Release(const vesk::Vector3d& world);

    /// Forgets the press: its release selects nothing.
    void Drop() { m_press.reset(); }

    /// Paints the box of a drag.
    void Paint(QPainter& painter) const;

private:
    struct Pressed
    {
        vesk::Vector3d start;
        vesk::Vector3d cursor;
        Qt::KeyboardModifiers modifiers;

        bool IsAdding() const { return modifiers.testFlag(Qt::ControlModifier); }
        bool IsToTheRight() const { return cursor.x() >= start.x(); }
    };

    bool IsDragged() const;
    void SelectAt(const Pressed& press);
    void SelectBetween(const Pressed& press);

    Workspace& m_workspace;
    const vesk::DrawingView& m_view;
    std::optional<Pressed> m_press;
};
