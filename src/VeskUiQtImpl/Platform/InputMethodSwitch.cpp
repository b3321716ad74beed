#include "VeskUiQtImpl/Platform/InputMethodSwitch.h"

#include <utility>

namespace vesk
{
namespace
{

int s_holderCount = 0;
InputContext s_saved = nullptr;

}

InputContext InputMethodSwitch::SwitchOff(QWidget& window)
{
    if (s_holderCount++ == 0)
        s_saved = Detach(window);
    return s_saved;
}

void InputMethodSwitch::SwitchOn(QWidget* pWindow)
{
    if (--s_holderCount > 0)
        return;
    InputContext saved = std::exchange(s_saved, nullptr);
    if (pWindow != nullptr)
        Attach(*pWindow, saved);
}

}
