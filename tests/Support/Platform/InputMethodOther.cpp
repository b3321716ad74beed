#include "Support/Platform/InputMethod.h"

#include <QWidget>

namespace vesk::test
{

bool TakesInputMethod(const QWidget& window)
{
    return window.testAttribute(Qt::WA_InputMethodEnabled);
}

void SetTakesInputMethod(QWidget& window, bool takes)
{
    window.setAttribute(Qt::WA_InputMethodEnabled, takes);
}

}
