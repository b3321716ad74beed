#pragma once

class QKeyEvent;

namespace vesk
{

/// The virtual key code that dimension handlers take for a key of the view; 0 for any other key.
///
/// Digits 48 to 57, letters 65 to 90, keypad digits 96 to 105, keypad minus 109, minus 189, comma
/// 188. With Ctrl or Meta a key belongs to the shortcuts: 0.
int ToVirtualKey(const QKeyEvent& event);

/// True for a key that does nothing alone: Shift, Ctrl and the like.
bool IsModifierKey(const QKeyEvent& event);

/// True for a printable character that can begin a value: the key may open an input.
bool CanBeginValue(const QKeyEvent& event);

}
