#pragma once

#include "Foundation/HostExport.h"

namespace vesk
{

class ICheckBoxGroupDefinition;
class IComboBoxDefinition;
class ICommandButtonDefinition;
class ICommandButtonMenuDefinition;
class IControlDefinitionChangeEvent;
class ILabelDefinition;
class ILineEditDefinition;
class IProgressBarDefinition;
class IRadioButtonGroupDefinition;

/// Finds the change event of a definition; null if the definition is null or has none.
class VESK_HOST_API ControlDefinitionUtil
{
public:
    static IControlDefinitionChangeEvent*
    GetControlDefinitionChangeEvent(const ICommandButtonDefinition* pDefinition);
    static IControlDefinitionChangeEvent*
    GetControlDefinitionChangeEvent(const ICheckBoxGroupDefinition* pDefinition);
    static IControlDefinitionChangeEvent*
    GetControlDefinitionChangeEvent(const IComboBoxDefinition* pDefinition);
    static IControlDefinitionChangeEvent*
    GetControlDefinitionChangeEvent(const ICommandButtonMenuDefinition* pDefinition);
    static IControlDefinitionChangeEvent*
    GetControlDefinitionChangeEvent(const ILabelDefinition* pDefinition);
    static IControlDefinitionChangeEvent*
    GetControlDefinitionChangeEvent(const ILineEditDefinition* pDefinition);
    static IControlDefinitionChangeEvent*
    GetControlDefinitionChangeEvent(const IProgressBarDefinition* pDefinition);
    static IControlDefinitionChangeEvent*
    GetControlDefinitionChangeEvent(const IRadioButtonGroupDefinition* pDefinition);
};

}
