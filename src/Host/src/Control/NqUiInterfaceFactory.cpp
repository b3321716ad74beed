#include "Control/NqUiInterfaceFactory.h"

namespace vesk
{

NqUiInterfaceFactory* NqUiInterfaceFactory::m_pFactory = nullptr;

NqUiInterfaceFactory::NqUiInterfaceFactory() = default;

NqUiInterfaceFactory::~NqUiInterfaceFactory()
{
    if (m_pFactory == this)
        m_pFactory = nullptr;
}

}
