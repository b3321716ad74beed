#include "VeskUiQtImpl/DebugWarnText.h"

#include "Foundation/TranslatorManager.h"

#include "HostUi/QtText.h"

namespace vesk
{

QString DebugWarnText(const wchar_t* source)
{
    return ToQString(TranslatorManager::Get()->Translate(L"VeskUiQtImpl", source));
}

}
