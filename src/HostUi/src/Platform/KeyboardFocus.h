#pragma once

class QWindow;

namespace vesk
{

/// Moves the keyboard at once from a window that is about to close to another one of the program.
///
/// A window manager that finds the owner of the keyboard gone leaves it to nobody for a moment, and
/// keys of that moment are lost. Nothing happens where the keyboard is elsewhere, or where the
/// window system takes care of it itself.
void MoveKeyboard(const QWindow& from, const QWindow& to);

}
