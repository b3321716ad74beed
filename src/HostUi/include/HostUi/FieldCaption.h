#pragma once

#include "Dimension/InputState.h"
#include "HostUi/HostUiExport.h"

#include <QString>

namespace vesk
{

/// What the user calls a value that can be typed; empty when none is.
VESK_HOST_UI_API QString FieldCaption(InputState field);

}
