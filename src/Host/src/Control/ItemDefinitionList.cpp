#include "Control/ItemDefinitionList.h"

#include "Warnings/HostSite.h"

namespace vesk
{

bool CheckItemIndex(int index, int last, const char* function)
{
    return Check(index >= 0 && index <= last, VESK_HOST_SITE(function, L"index不正确"));
}

bool CheckItem(const IControlDefinition* pItem, const char* function)
{
    return Check(pItem != nullptr, VESK_HOST_SITE(function, L"opItem为空"));
}

}
