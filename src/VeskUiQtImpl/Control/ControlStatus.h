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

}
