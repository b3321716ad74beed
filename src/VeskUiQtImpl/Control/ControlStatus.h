#pragma once

#include "Control/IControlDefinition.h"

#include <QWidget>

namespace vesk
{

/// Gives a widget the visibility and the enabled state of its definition, without comparing.
///
/// Hiding takes the focus away, and who hears of that may do anything: so each state is read when
/// its turn comes, and only while `isAlive()` says that both widget and definition are still there.
/// False when they are not.
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

/// Each gives a widget one state where it shows another.
///
/// Below a hidden or disabled parent a widget is so whatever it is told, and may then miss a
/// change: the next ApplyStatus, which does not compare, sets that right.
void UpdateVisible(QWidget& widget, bool isVisible);
void UpdateEnabled(QWidget& widget, bool isEnabled);

}
