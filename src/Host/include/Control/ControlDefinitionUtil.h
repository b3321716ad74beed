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
    /// The event of a command button.
    static IControlDefinitionChangeEvent*
    GetControlDefinitionChangeEvent(const ICommandButtonDefinition* pDefinition);

    /// The event of a check-box group.
    static IControlDefinitionChangeEvent*
    GetControlDefinitionChangeEvent(const ICheckBoxGroupDefinition* pDefinition);

    /// The event of a combo box.
    static IControlDefinitionChangeEvent*
    GetControlDefinitionChangeEvent(const IComboBoxDefinition* pDefinition);

    /// The event of a button with a menu.
    static IControlDefinitionChangeEvent*
    GetControlDefinitionChangeEvent(const ICommandButtonMenuDefinition* pDefinition);

    /// The event of a label.
    static IControlDefinitionChangeEvent*
    GetControlDefinitionChangeEvent(const ILabelDefinition* pDefinition);

    /// The event of a line edit; that of the definition referred to, if it is a reference.
    static IControlDefinitionChangeEvent*
    GetControlDefinitionChangeEvent(const ILineEditDefinition* pDefinition);

    /// The event of a progress bar.
    static IControlDefinitionChangeEvent*
    GetControlDefinitionChangeEvent(const IProgressBarDefinition* pDefinition);

    /// The event of a radio-button group.
    static IControlDefinitionChangeEvent*
    GetControlDefinitionChangeEvent(const IRadioButtonGroupDefinition* pDefinition);
};

}
