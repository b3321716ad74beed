#include "VeskUiQtImpl/Platform/InputMethodSwitch.h"

#include <QWidget>

#include <windows.h>

#include <imm.h>

namespace vesk
{
namespace
{

HWND NativeWindow(const QWidget& window)
{
    return reinterpret_cast<HWND>(window.winId());
}

}

InputContext InputMethodSwitch::Detach(QWidget& window)
{
    return ImmAssociateContext(NativeWindow(window), nullptr);
}

void InputMethodSwitch::Attach(QWidget& window, InputContext context)
{
    ImmAssociateContext(NativeWindow(window), static_cast<HIMC>(context));
}

}
