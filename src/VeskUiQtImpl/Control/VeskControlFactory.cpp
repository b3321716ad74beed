#include "Control/VeskControlFactory.h"

#include "CheckSite.h"
#include "Control/ICheckBoxGroupDefinition.h"
#include "Control/IComboBoxDefinition.h"
#include "Control/ICommandButtonMenuDefinition.h"
#include "Control/IProgressBarDefinition.h"
#include "Control/IRadioButtonGroupDefinition.h"
#include "Control/QtButton.h"
#include "Control/QtLabel.h"
#include "Control/QtLineEdit.h"

#include <QWidget>

namespace vesk
{
namespace
{

/// The kinds of control that the library does not make yet end here: the definition is freed.
OwnerPtr<IControl> NotMade(const CheckSite& site)
{
    Check(false, site);
    return nullptr;
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
VeskControlFactory::CreateQtCommandButtonMenu(OwnerPtr<ICommandButtonMenuDefinition>)
{
    return NotMade(VESK_SITE("vesk::VeskControlFactory::CreateQtCommandButtonMenu",
                             L"QtCommandButtonMenu尚未实现"));
}

OwnerPtr<IControl> VeskControlFactory::CreateQtComboBox(OwnerPtr<IComboBoxDefinition>)
{
    return NotMade(VESK_SITE("vesk::VeskControlFactory::CreateQtComboBox", L"QtComboBox尚未实现"));
}

OwnerPtr<IControl> VeskControlFactory::CreateQtProgressBar(OwnerPtr<IProgressBarDefinition>)
{
    return NotMade(
        VESK_SITE("vesk::VeskControlFactory::CreateQtProgressBar", L"QtProgressBar尚未实现"));
}

OwnerPtr<IControl>
VeskControlFactory::CreateQtRadioButtonGroup(OwnerPtr<IRadioButtonGroupDefinition>,
                                             WindowId parentWindowId)
{
    constexpr char Function[] = "vesk::VeskControlFactory::CreateQtRadioButtonGroup";
    const QWidget* pParent = QWidget::find(parentWindowId);
    if (!Check(pParent != nullptr, VESK_SITE(Function, L"pParent为空")))
        return nullptr;
    return NotMade(VESK_SITE(Function, L"QtRadioButtonGroup尚未实现"));
}

OwnerPtr<IControl> VeskControlFactory::CreateQtCheckBoxGroup(OwnerPtr<ICheckBoxGroupDefinition>,
                                                             WindowId parentWindowId)
{
    constexpr char Function[] = "vesk::VeskControlFactory::CreateQtCheckBoxGroup";
    const QWidget* pParent = QWidget::find(parentWindowId);
    if (!Check(pParent != nullptr, VESK_SITE(Function, L"pParent为空")))
        return nullptr;
    return NotMade(VESK_SITE(Function, L"QtCheckBoxGroup尚未实现"));
}

}
