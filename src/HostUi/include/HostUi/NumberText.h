#pragma once

#include "HostUi/HostUiExport.h"

#include <QString>

namespace vesk
{

/// A number to be read, with as many decimals, as the default locale (QLocale) writes it; without
/// separators of thousands, which typed again could be taken for decimals.
VESK_HOST_UI_API QString ToLocalText(double value, int decimals);

}
