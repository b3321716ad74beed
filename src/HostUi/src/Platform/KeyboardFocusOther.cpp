#include "Platform/KeyboardFocus.h"

namespace vesk
{

void MoveKeyboard(const QWindow&, const QWindow&) {}

}
