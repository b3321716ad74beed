#pragma once

#include "Control/IControlDefinition.h"

#include <QWidget>

namespace vesk
{

/// Applies the visibility and enabled state of a definition to its widget, without comparing.
///
/// Hiding moves the focus, and handlers of that may do anything: so each state is read just before
/// it is applied, and only while `isAlive()` says that both widget and definition still exist.
/// Returns false if they do not.
template <class IsAlive>
bool ApplyStatus(QWidget& widget, const IControlDefinition& definition, IsAlive isAlive)
{
    widget.setVisible(definition.IsVisible());
    if (!isAlive())
        return false;
    widget.setEnabled(definition.IsEnabled());
    return isAlive();
}

/// The same for a widget that owns its definition.
bool ApplyStatus(QWidget& widget, const IControlDefinition& definition);

/// True when a widget shows the visibility and enabled state of a definition.
inline bool HasStatus(const QWidget& widget, const IControlDefinition& definition)
{
    return widget.isVisible() == definition.IsVisible() &&
           widget.isEnabled() == definition.IsEnabled();
}

/// Each sets one state of a widget if the widget differs from it.
///
/// Under a hidden or disabled parent a widget reports that state whatever its own setting is, and
/// may then miss a change: the next ApplyStatus, which does not compare, corrects that.
void UpdateVisible(QWidget& widget, bool isVisible);
void UpdateEnabled(QWidget& widget, bool isEnabled);

}
