#pragma once

class QWidget;

namespace vesk
{

class IControlDefinition;

/// Gives a widget the visibility and the enabled state of its definition, without comparing.
///
/// False when the widget died of it: hiding takes the focus away, and who hears of that may do
/// anything.
bool ApplyStatus(QWidget& widget, const IControlDefinition& definition);

/// Each gives a widget one state where it shows another.
///
/// Below a hidden or disabled parent a widget is so whatever it is told, and may then miss a
/// change: the next ApplyStatus, which does not compare, sets that right.
void UpdateVisible(QWidget& widget, bool isVisible);
void UpdateEnabled(QWidget& widget, bool isEnabled);

}
