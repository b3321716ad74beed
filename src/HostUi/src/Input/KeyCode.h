#pragma once

class QKeyEvent;

namespace vesk
{

struct InputField;

/// Key codes as dimension handlers expect them (ITemporaryDimensionHandler).
enum KeyCode : int
{
    VirtualKeypad0 = 96,
    VirtualKeypadMinus = 109,
    VirtualComma = 188,
    VirtualMinus = 189,
};

/// The code for a key of the view, digits and capital letters as themselves; 0 for a key that
/// handlers do not use, and with Ctrl or Meta, which make it a shortcut.
int ToVirtualKey(const QKeyEvent& event);

/// True for a key that does nothing on its own: Shift, Ctrl and the like.
bool IsModifierKey(const QKeyEvent& event);

/// True for a printable character that can begin a value: the key may open an input.
bool CanBeginValue(const QKeyEvent& event);

/// True for a key (Qt::Key) that commits a field's value.
bool TakesValue(const InputField& field, int key);

}
