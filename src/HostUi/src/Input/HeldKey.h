#pragma once

#include <functional>

class QKeyEvent;

namespace vesk
{

class EscapeKey;

/// Holds a key that is meant for a command that has not begun yet: as soon as that accepts input,
/// `deliver` receives a copy. Of an Escape that is held down only the first press counts.
void HoldKey(QKeyEvent& event, EscapeKey& escape, const std::function<void(QKeyEvent&)>& deliver);

}
