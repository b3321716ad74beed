#include "VeskUiQtImpl/Control/VeskControlFactory.h"

#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/Control/QtButton.h"
#include "VeskUiQtImpl/Control/QtCheckBoxGroup.h"
#include "VeskUiQtImpl/Control/QtComboBox.h"
#include "VeskUiQtImpl/Control/QtCommandButtonMenu.h"
#include "VeskUiQtImpl/Control/QtLabel.h"
#include "VeskUiQtImpl/Control/QtLineEdit.h"
#include "VeskUiQtImpl/Control/QtProgressBar.h"
#include "VeskUiQtImpl/Control/QtRadioButtonGroup.h"

#include <QPointer>
#include <QWidget>

namespace vesk
{
namespace
{

/// Creates a group in `pParent`. What a group reports during its construction may run an event
/// loop, and a destroyed parent destroys its group: then nothing is left to return.
template <class Group, class Definition>
OwnerPtr<IControl> MakeGroup(OwnerPtr<Definition> opDefinition, QWidget* pParent)
{
    const QPointer<QWidget> pLivingParent(pParent);
    OwnerPtr<IControl> opGroup = MakeOwner<Group>(std::move(opDefinition), pParent);
    if (pLivingParent == nullptr)
        opGroup.Release();
    return opGroup;
}

}

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
    return MakeGroup<QtRadioButtonGroup>(std::move(opDefinition), pParent);
}

OwnerPtr<IControl>
VeskControlFactory::CreateQtCheckBoxGroup(OwnerPtr<ICheckBoxGroupDefinition> opDefinition,
                                          WindowId parentWindowId)
{
    QWidget* pParent = QWidget::find(parentWindowId);
    if (!Check(pParent != nullptr,
               VESK_SITE("vesk::VeskControlFactory::CreateQtCheckBoxGroup", L"pParent为空")))
        return nullptr;
    return MakeGroup<QtCheckBoxGroup>(std::move(opDefinition), pParent);
}

}
