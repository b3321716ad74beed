#pragma once

#include "HostUi/HostUiExport.h"

namespace vesk
{

/// Chooses the window system on which editors can float over a drawing: in a Wayland session, the
/// X server that such sessions have for other programs. Wayland itself lets no program place a
/// window of its own.
///
/// Sets QT_QPA_PLATFORM, so call it before there is an application object. Does nothing if that
/// variable is set, if there is no X server, or outside Wayland. Where the X server turns out not
/// to be usable, Qt takes Wayland.
VESK_HOST_UI_API void ChooseWindowSystem();

}
