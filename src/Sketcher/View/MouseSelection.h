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

/// Selects with the left mouse button.
///
/// A click selects the entity under the cursor. A drag to the right selects the entities completely
/// inside its box, a drag to the left also those that the box touches. With Ctrl a click adds an
/// entity to the selection or removes it, and a drag adds. Each is one journal record.
class MouseSelection final
{
public:
    /// Workspace and view are not owned and outlive it.
    MouseSelection(Workspace& workspace, const vesk::DrawingView& view);

    /// True from the press to the release, unless the press was dropped.
    bool IsPressed() const { return m_press.has_value(); }

    void Press(const vesk::Vector3d& world, Qt::KeyboardModifiers modifiers);
    void MoveTo(const vesk::Vector3d& world);

    /// Selects, if there was a press.
    void Release(const vesk::Vector3d& world);

    /// Forgets the press, so that its release selects nothing.
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
