#pragma once

#include "HostUi/HostUiExport.h"

#include <QString>

namespace vesk
{

/// Takes the records of how a program was published from a file of lines like "InHouseMode=false".
/// Records that it does not name stay as they are; a value that is neither true nor false is left
/// out. False when there is no such file.
VESK_HOST_UI_API bool LoadPublishConfig(const QString& path);

}
