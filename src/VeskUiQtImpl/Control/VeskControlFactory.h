#pragma once

#include "Control/VeskIControlFactory.h"

namespace vesk
{

/// Makes the Qt controls of the host's definitions.
///
/// Only a null parent widget stops a creation; a definition that is missing is the control's to
/// report.
class VeskControlFactory final : public VeskIControlFactory
{
public:
    OwnerPtr<IControl> CreateQtButton(OwnerPtr<ICommandButtonDefinition> opDefinition) override;
    OwnerPtr<IControl> CreateQtLineEdit(OwnerPtr<ILineEditDefinition> opDefinition) override;
    OwnerPtr<IControl> CreateQtLabel(OwnerPtr<ILabelDefinition> opDefinition) override;
    OwnerPtr<IControl>
    CreateQtCommandButtonMenu(OwnerPtr<ICommandButtonMenuDefinition> opDefinition) override;
    OwnerPtr<IControl> CreateQtComboBox(OwnerPtr<IComboBoxDefinition> opDefinition) override;
    OwnerPtr<IControl> CreateQtProgressBar(OwnerPtr<IProgressBarDefinition> opDefinition) override;
    OwnerPtr<IControl> CreateQtRadioButtonGroup(OwnerPtr<IRadioButtonGroupDefinition> opDefinition,
                                                WindowId parentWindowId) override;
    OwnerPtr<IControl> CreateQtCheckBoxGroup(OwnerPtr<ICheckBoxGroupDefinition> opDefinition,
                                             WindowId parentWindowId) override;
};

}
