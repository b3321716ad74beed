#pragma once

#include "Control/VeskIControlFactory.h"

namespace vesk
{

/// Creates the Qt controls for the definitions of the host.
///
/// Creation is refused only for a null parent widget; a missing definition is reported by the
/// control.
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
