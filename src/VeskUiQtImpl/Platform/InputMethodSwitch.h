#pragma once

class QWidget;

namespace vesk
{

/// What a window had before its input method was switched off: the platform's handle, null for
/// none.
using InputContext = void*;

/// Switches the input method of the main window off for as long as anybody wants it off.
///
/// The first who wants it off saves what the window had, the last one restores it; those between
/// only count. So the order in which they come and go does not matter. GUI thread only.
class InputMethodSwitch
{
public:
    /// Joins those who want it off. The result is what the first one saved.
    static InputContext SwitchOff(QWidget& window);

    /// Leaves them. The last one gives `pWindow` back what was saved; without a window (null) that
    /// is lost. Each SwitchOff is answered by one SwitchOn.
    static void SwitchOn(QWidget* pWindow);

private:
    static InputContext Detach(QWidget& window);
    static void Attach(QWidget& window, InputContext context);
};

}
