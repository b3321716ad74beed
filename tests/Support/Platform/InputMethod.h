#pragma once

class QWidget;

namespace vesk::test
{

/// True if the system lets an input method compose text in a window.
bool TakesInputMethod(const QWidget& window);

/// Lets a window accept input methods, or not.
void SetTakesInputMethod(QWidget& window, bool takes);

}
