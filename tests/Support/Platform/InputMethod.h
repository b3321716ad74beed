#pragma once

class QWidget;

namespace vesk::test
{

/// True when the system lets an input method compose text in a window.
bool TakesInputMethod(const QWidget& window);

/// Has a window take input methods, or not.
void SetTakesInputMethod(QWidget& window, bool takes);

}
