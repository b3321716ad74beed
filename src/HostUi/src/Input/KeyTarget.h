#pragma once

class QEvent;
class QWidget;

namespace vesk
{

/// The focus widget of a window if it accepts text and is not `pEditor`; otherwise null.
QWidget* FindTextField(const QWidget& window, const QWidget* pEditor);

/// Sends a key that arrived elsewhere to a widget; through its window, where others listen, if the
/// widget has the window's focus.
void SendKeyTo(QWidget& widget, QEvent& event);

}
