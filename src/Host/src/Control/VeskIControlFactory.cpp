#include "Control/VeskIControlFactory.h"

namespace vesk
{

namespace
{

VeskIControlFactory* s_pControlFactory = nullptr;

}

VeskIControlFactory* VeskIControlFactory::Get()
{
    return s_pControlFactory;
}

void VeskIControlFactory::Set(VeskIControlFactory* pFactory)
{
    s_pControlFactory = pFactory;
}

}
