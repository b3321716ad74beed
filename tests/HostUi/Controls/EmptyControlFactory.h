#pragma once

#include "Control/ICheckBoxGroupDefinition.h"
#include "Control/IComboBoxDefinition.h"
#include "Control/ICommandButtonDefinition.h"
#include "Control/ICommandButtonMenuDefinition.h"
#include "Control/IControl.h"
#include "Control/ILabelDefinition.h"
#include "Control/ILineEditDefinition.h"
#include "Control/IProgressBarDefinition.h"
#include "Control/IRadioButtonGroupDefinition.h"
#include "Control/VeskIControlFactory.h"

namespace vesk::test
{

/// A control library that creates nothing; installed while it lives.
class EmptyControlFactory : public VeskIControlFactory
{
public:
    EmptyControlFactory() { Set(this); }
    ~EmptyControlFactory() override { Set(nullptr); }

    OwnerPtr<IControl> CreateQtButton(OwnerPtr<ICommandButtonDefinition>) override { return {}; }
    OwnerPtr<IControl> CreateQtLineEdit(OwnerPtr<ILineEditDefinition>) override { return {}; }
    OwnerPtr<IControl> CreateQtLabel(OwnerPtr<ILabelDefinition>) override { return {}; }
    OwnerPtr<IControl> CreateQtComboBox(OwnerPtr<IComboBoxDefinition>) override { return {}; }
    OwnerPtr<IControl> CreateQtProgressBar(OwnerPtr<IProgressBarDefinition>) override { return {}; }
    OwnerPtr<IControl> CreateQtCommandButtonMenu(OwnerPtr<ICommandButtonMenuDefinition>) override
    {
        return {};
    }
    OwnerPtr<IControl> CreateQtRadioButtonGroup(OwnerPtr<IRadioButtonGroupDefinition>,
                                                WindowId) override
    {
        return {};
    }
    OwnerPtr<IControl> CreateQtCheckBoxGroup(OwnerPtr<ICheckBoxGroupDefinition>, WindowId) override
    {
        return {};
    }
};

}
