#pragma once

#include "Control/ControlDefinitionUtil.h"
#include "Control/IControlDefinitionChangeEvent.h"

namespace vesk
{

/// Subscribes a handler to the change event of a definition; does nothing if there is no event.
template <class Definition>
void Subscribe(const Definition* pDefinition, IControlDefinitionChangeEventHandler* pHandler)
{
    if (auto* pEvent = ControlDefinitionUtil::GetControlDefinitionChangeEvent(pDefinition))
        pEvent->Add(pHandler);
}

/// Removes the subscription; does nothing if there is none. The definition may be null.
template <class Definition>
void Unsubscribe(const Definition* pDefinition, IControlDefinitionChangeEventHandler* pHandler)
{
    if (auto* pEvent = ControlDefinitionUtil::GetControlDefinitionChangeEvent(pDefinition))
        pEvent->Delete(pHandler);
}

}
