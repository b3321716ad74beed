#pragma once

#include "Control/ControlDefinitionUtil.h"
#include "Control/IControlDefinitionChangeEvent.h"

namespace vesk
{

/// Subscribes a handler to the change event of a definition; nothing happens where there is none.
template <class Definition>
void Subscribe(const Definition* pDefinition, IControlDefinitionChangeEventHandler* pHandler)
{
    if (auto* pEvent = ControlDefinitionUtil::GetControlDefinitionChangeEvent(pDefinition))
        pEvent->Add(pHandler);
}

/// Withdraws the subscription; nothing happens where there is none. The definition may be null.
template <class Definition>
void Unsubscribe(const Definition* pDefinition, IControlDefinitionChangeEventHandler* pHandler)
{
    if (auto* pEvent = ControlDefinitionUtil::GetControlDefinitionChangeEvent(pDefinition))
        pEvent->Delete(pHandler);
}

}
