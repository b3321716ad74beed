#pragma once

#include <QString>

namespace vesk
{

/// A text of the warning dialog in the user's language.
QString DebugWarnText(const wchar_t* source);

}
