#pragma once

class QEvent;
class QWidget;

namespace vesk
{

/// The widget of a window that has its focus and takes text; null when that is another one, or
/// `pEditor`.
QWidget* FindTextField(const QWidget& window, const QWidget* pEditor);

/// Sends a key that arrived elsewhere to a widget: through its window, where others listen, if the
/// widget has its focus.
void SendKeyTo(QWidget& widget, QEvent& event);

}
