#pragma once

class QWindow;

namespace vesk
{

/// Moves the keyboard at once from a window that is about to close to another window of the
/// program.
///
/// When the keyboard's owner disappears, a window manager leaves the keyboard unassigned for a
/// moment, and keys typed then are lost. Does nothing if the keyboard is elsewhere, or if the
/// window system takes care of this itself.
void MoveKeyboard(const QWindow& from, const QWindow& to);

}
