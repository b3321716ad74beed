#include "VeskUiQtImpl/Platform/InputMethodSwitch.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QWidget>

namespace vesk
{
namespace
{

/// Represents "the window accepted input methods"; only its address matters.
char s_enabled = 0;

void SetInputMethodEnabled(QWidget& window, bool isEnabled)
{
    window.setAttribute(Qt::WA_InputMethodEnabled, isEnabled);
    QGuiApplication::inputMethod()->update(Qt::ImEnabled);
}

}

InputContext InputMethodSwitch::Detach(QWidget& window)
{
    InputContext context = window.testAttribute(Qt::WA_InputMethodEnabled) ? &s_enabled : nullptr;
    SetInputMethodEnabled(window, false);
    return context;
}

void InputMethodSwitch::Attach(QWidget& window, InputContext context)
{
    SetInputMethodEnabled(window, context != nullptr);
}

}
