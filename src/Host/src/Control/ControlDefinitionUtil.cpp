#include "Control/ControlDefinitionUtil.h"

#include "Control/ICheckBoxGroupDefinition.h"
#include "Control/IComboBoxDefinition.h"
#include "Control/ICommandButtonDefinition.h"
#include "Control/ICommandButtonMenuDefinition.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Control/ILabelDefinition.h"
#include "Control/ILineEditDefinition.h"
#include "Control/IProgressBarDefinition.h"
#include "Control/IRadioButtonGroupDefinition.h"

namespace vesk
{

namespace
{

IControlDefinitionChangeEvent* FindEvent(const IControlDefinition* pDefinition)
{
    const auto* pSource = dynamic_cast<const IControlDefinitionChangeEventSource*>(pDefinition);
    return pSource != nullptr ? pSource->GetControlDefinitionChangeEvent() : nullptr;
}

}

IControlDefinitionChangeEvent*
ControlDefinitionUtil::GetControlDefinitionChangeEvent(const ICommandButtonDefinition* pDefinition)
{
    return FindEvent(pDefinition);
}

IControlDefinitionChangeEvent*
ControlDefinitionUtil::GetControlDefinitionChangeEvent(const ICheckBoxGroupDefinition* pDefinition)
{
    return FindEvent(pDefinition);
}

IControlDefinitionChangeEvent*
ControlDefinitionUtil::GetControlDefinitionChangeEvent(const IComboBoxDefinition* pDefinition)
{
    return FindEvent(pDefinition);
}

IControlDefinitionChangeEvent* ControlDefinitionUtil::GetControlDefinitionChangeEvent(
    const ICommandButtonMenuDefinition* pDefinition)
{
    return FindEvent(pDefinition);
}

IControlDefinitionChangeEvent*
ControlDefinitionUtil::GetControlDefinitionChangeEvent(const ILabelDefinition* pDefinition)
{
    return FindEvent(pDefinition);
}

IControlDefinitionChangeEvent*
ControlDefinitionUtil::GetControlDefinitionChangeEvent(const ILineEditDefinition* pDefinition)
{
    return FindEvent(pDefinition);
}

IControlDefinitionChangeEvent*
ControlDefinitionUtil::GetControlDefinitionChangeEvent(const IProgressBarDefinition* pDefinition)
{
    return FindEvent(pDefinition);
}

IControlDefinitionChangeEvent* ControlDefinitionUtil::GetControlDefinitionChangeEvent(
    const IRadioButtonGroupDefinition* pDefinition)
{
    return FindEvent(pDefinition);
}

}
