#include "Control/VeskIControlFactory.h"

namespace vesk
{

namespace
{

VeskIControlFactory* s_pFactory = nullptr;

}

VeskIControlFactory* VeskIControlFactory::Get()
{
    return s_pFactory;
}

void VeskIControlFactory::Set(VeskIControlFactory* pFactory)
{
    s_pFactory = pFactory;
}

}
