#include "Input/KeyTarget.h"

#include <QCoreApplication>
#include <QWidget>
#include <QWindow>

namespace vesk
{

QWidget* FindTextField(const QWidget& window, const QWidget* pEditor)
{
    QWidget* pFocus = window.focusWidget();
    const bool takesText = pFocus != nullptr && pFocus->testAttribute(Qt::WA_InputMethodEnabled);
    return takesText && pFocus != pEditor ? pFocus : nullptr;
}

void SendKeyTo(QWidget& widget, QEvent& event)
{
    QWindow* pWindow = widget.window()->windowHandle();
    const bool isReached = pWindow != nullptr && widget.window()->focusWidget() == &widget;
    QCoreApplication::sendEvent(isReached ? static_cast<QObject*>(pWindow) : &widget, &event);
}

}
