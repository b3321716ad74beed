#include "Support/Platform/InputMethod.h"

#include <QWidget>

#include <windows.h>

#include <imm.h>

namespace vesk::test
{
namespace
{

HWND NativeWindow(const QWidget& window)
{
    return reinterpret_cast<HWND>(window.winId());
}

}

bool TakesInputMethod(const QWidget& window)
{
    HIMC context = ImmGetContext(NativeWindow(window));
    if (context != nullptr)
        ImmReleaseContext(NativeWindow(window), context);
    return context != nullptr;
}

void SetTakesInputMethod(QWidget& window, bool takes)
{
    ImmAssociateContextEx(NativeWindow(window), nullptr, takes ? IACE_DEFAULT : 0);
}

}
