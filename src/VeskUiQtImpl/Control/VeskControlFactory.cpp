#include "Control/VeskControlFactory.h"

#include "CheckSite.h"
#include "Control/QtButton.h"
#include "Control/QtCheckBoxGroup.h"
#include "Control/QtComboBox.h"
#include "Control/QtCommandButtonMenu.h"
#include "Control/QtLabel.h"
#include "Control/QtLineEdit.h"
#include "Control/QtProgressBar.h"
#include "Control/QtRadioButtonGroup.h"

#include <QWidget>

namespace vesk
{

OwnerPtr<IControl>
VeskControlFactory::CreateQtButton(OwnerPtr<ICommandButtonDefinition> opDefinition)
{
    return MakeOwner<QtButton>(std::move(opDefinition), nullptr);
}

OwnerPtr<IControl> VeskControlFactory::CreateQtLineEdit(OwnerPtr<ILineEditDefinition> opDefinition)
{
    return MakeOwner<QtLineEdit>(std::move(opDefinition), nullptr);
}

OwnerPtr<IControl> VeskControlFactory::CreateQtLabel(OwnerPtr<ILabelDefinition> opDefinition)
{
    return MakeOwner<QtLabel>(std::move(opDefinition), nullptr);
}

OwnerPtr<IControl>
VeskControlFactory::CreateQtCommandButtonMenu(OwnerPtr<ICommandButtonMenuDefinition> opDefinition)
{
    return MakeOwner<QtCommandButtonMenu>(std::move(opDefinition));
}

OwnerPtr<IControl> VeskControlFactory::CreateQtComboBox(OwnerPtr<IComboBoxDefinition> opDefinition)
{
    return MakeOwner<QtComboBox>(std::move(opDefinition), nullptr);
}

OwnerPtr<IControl>
VeskControlFactory::CreateQtProgressBar(OwnerPtr<IProgressBarDefinition> opDefinition)
{
    return MakeOwner<QtProgressBar>(std::move(opDefinition), nullptr);
}

OwnerPtr<IControl>
VeskControlFactory::CreateQtRadioButtonGroup(OwnerPtr<IRadioButtonGroupDefinition> opDefinition,
                                             WindowId parentWindowId)
{
    QWidget* pParent = QWidget::find(parentWindowId);
    if (!Check(pParent != nullptr,
               VESK_SITE("vesk::VeskControlFactory::CreateQtRadioButtonGroup", L"pParent为空")))
        return nullptr;
    return MakeOwner<QtRadioButtonGroup>(std::move(opDefinition), pParent);
}

OwnerPtr<IControl>
VeskControlFactory::CreateQtCheckBoxGroup(OwnerPtr<ICheckBoxGroupDefinition> opDefinition,
                                          WindowId parentWindowId)
{
    QWidget* pParent = QWidget::find(parentWindowId);
    if (!Check(pParent != nullptr,
               VESK_SITE("vesk::VeskControlFactory::CreateQtCheckBoxGroup", L"pParent为空")))
        return nullptr;
    return MakeOwner<QtCheckBoxGroup>(std::move(opDefinition), pParent);
}

}
