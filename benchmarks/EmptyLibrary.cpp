// A library that registers what the control library registers when it is loaded, and does nothing
// else.

#include "Control/IControl.h"
#include "Control/VeskIControlFactory.h"
#include "Dimension/ITemporaryDimensionHandler.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Warnings/IDebugWarningDisplayer.h"
#include "Warnings/NqUiInterfaceFactory.h"

using namespace vesk;

namespace
{

class Services final : public NqUiInterfaceFactory
{
public:
    Services() { m_pFactory = this; }
    ~Services() override { m_pFactory = nullptr; }

    IPropertyWidget* GetPropertyWidget() override { return nullptr; }
    OwnerPtr<IDebugWarningDialogDisplayer> CreateDebugWarningDialogDisplayer() override
    {
        return {};
    }
};

class Controls final : public VeskIControlFactory
{
public:
    Controls() { Set(this); }
    ~Controls() override { Set(nullptr); }

    OwnerPtr<IControl> CreateQtButton(OwnerPtr<ICommandButtonDefinition>) override { return {}; }
    OwnerPtr<IControl> CreateQtLineEdit(OwnerPtr<ILineEditDefinition>) override { return {}; }
    OwnerPtr<IControl> CreateQtLabel(OwnerPtr<ILabelDefinition>) override { return {}; }
    OwnerPtr<IControl> CreateQtCommandButtonMenu(OwnerPtr<ICommandButtonMenuDefinition>) override
    {
        return {};
    }
    OwnerPtr<IControl> CreateQtComboBox(OwnerPtr<IComboBoxDefinition>) override { return {}; }
    OwnerPtr<IControl> CreateQtProgressBar(OwnerPtr<IProgressBarDefinition>) override { return {}; }
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

class Handlers final : public ITemporaryDimensionHandlerFactory
{
public:
    Handlers() { TemporaryDimensionMgr::GetInstance()->SetHandlerFactory(this); }
    ~Handlers() override { TemporaryDimensionMgr::GetInstance()->SetHandlerFactory(nullptr); }

    OwnerPtr<ITemporaryDimensionHandler> UpdateOrCreateHandler(const ITemporaryDimensionContext*,
                                                               ITemporaryDimensionHandler*) override
    {
        return {};
    }
};

Services s_services;
Controls s_controls;
Handlers s_handlers;

}
