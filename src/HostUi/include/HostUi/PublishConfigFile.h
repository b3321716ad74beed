#pragma once

#include "HostUi/HostUiExport.h"

#include <QString>

namespace vesk
{

/// Sets publish configuration records from a file of lines such as "InHouseMode=false". Records
/// that the file does not name stay unchanged; a value other than true or false is ignored. Returns
/// false if the file is missing or unreadable.
VESK_HOST_UI_API bool LoadPublishConfig(const QString& path);

}
