#pragma once

class QWindow;

namespace vesk
{

/// Has the toolkit hear where the window system shows a window, if it believes it elsewhere. The
/// window itself stays where it is. Nothing happens where the toolkit hears of it anyway.
void TellPosition(const QWindow& window);

}
