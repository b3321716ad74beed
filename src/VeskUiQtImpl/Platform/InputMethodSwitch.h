#pragma once

class QWidget;

namespace vesk
{

/// The input method context a window had before it was switched off: the handle of the platform,
/// null for none.
using InputContext = void*;

/// Switches the input method of the main window off for as long as at least one holder wants it
/// off.
///
/// The first holder saves the context of the window, the last one restores it; those in between
/// only count. So holders may come and go in any order. GUI thread only.
class InputMethodSwitch
{
public:
    /// Adds a holder. Returns what the first holder saved.
    static InputContext SwitchOff(QWidget& window);

    /// Removes a holder. The last one gives the saved context back to `pWindow`; without a window
    /// (null) the context is lost. Each SwitchOff needs exactly one SwitchOn.
    static void SwitchOn(QWidget* pWindow);

private:
    static InputContext Detach(QWidget& window);
    static void Attach(QWidget& window, InputContext context);
};

}
