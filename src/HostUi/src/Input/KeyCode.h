#pragma once

class QKeyEvent;

namespace vesk
{

struct InputField;

/// Codes of keys as dimension handlers take them (ITemporaryDimensionHandler).
enum VirtualKey : int
{
    VirtualKeypad0 = 96,
    VirtualKeypadMinus = 109,
    VirtualComma = 188,
    VirtualMinus = 189,
};

/// The code for a key of the view, digits and capital letters as themselves; 0 for a key that
/// handlers do not take. With Ctrl or Meta a key belongs to the shortcuts: 0.
int ToVirtualKey(const QKeyEvent& event);

/// True for a key that does nothing alone: Shift, Ctrl and the like.
bool IsModifierKey(const QKeyEvent& event);

/// True for a printable character that can begin a value: the key may open an input.
bool CanBeginValue(const QKeyEvent& event);

/// True for a key (Qt::Key) with which a field takes its value.
bool TakesValue(const InputField& field, int key);

}
