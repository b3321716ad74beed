#include "Warnings/NqUiInterfaceFactory.h"

#include "Warnings/WarningDesk.h"

namespace vesk
{

NqUiInterfaceFactory* NqUiInterfaceFactory::m_pFactory = nullptr;

NqUiInterfaceFactory::NqUiInterfaceFactory() = default;

NqUiInterfaceFactory::~NqUiInterfaceFactory()
{
    if (m_pFactory == this)
        m_pFactory = nullptr;
    // The displayer was created by this factory: its code is unloaded with it.
    WarningDesk::GetInstance().DropDisplayer();
}

}
