#include "Control/QtButton.h"

#include "CheckSite.h"
#include "Command/CommandParameters.h"
#include "Control/ButtonAction.h"
#include "Control/ControlDefinitionChangeByUser.h"
#include "Control/ControlStatus.h"
#include "Control/ControlSubscription.h"
#include "Control/PropertyName.h"
#include "ProcessCommandUtil.h"

#include <HostUi/QtText.h>

#include <QAction>
#include <QIcon>
#include <QPointer>
#include <QVariant>

namespace vesk
{
namespace
{

Qt::ToolButtonStyle ToQtButtonStyle(int hostStyle)
{
    switch (hostStyle)
    {
    case 0:
        return Qt::ToolButtonIconOnly;
    case 1:
        return Qt::ToolButtonTextOnly;
    case 2:
        return Qt::ToolButtonTextBesideIcon;
    case 4:
        return Qt::ToolButtonFollowStyle;
    default:
        return Qt::ToolButtonTextUnderIcon;
    }
}

/// Writes all three whether they changed or not. Who listens to the action may delete it meanwhile.
void UpdateAction(const ICommandButtonDefinition& definition, const QPointer<QAction>& pAction)
{
    const QIcon icon(ToQString(definition.GetIconPath()));
    const QString caption = ToQString(definition.GetCaption());
    const bool isChecked = definition.IsChecked();

    pAction->setIcon(icon);
    if (pAction != nullptr)
        pAction->setText(caption);
    if (pAction != nullptr)
        pAction->setChecked(isChecked);
}

}

QtButton::QtButton(OwnerPtr<ICommandButtonDefinition> pControlDefinition, QWidget* pParent)
    : QToolButton(pParent), m_pControlDefinition(std::move(pControlDefinition))
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtButton::QtButton", L"pControlDefinition为空")))
        return;

    QAction* pAction = CreateAction(*m_pControlDefinition, this, "vesk::CreateAction");
    if (pAction != nullptr)
    {
        pAction->setChecked(m_pControlDefinition->IsChecked());
        setDefaultAction(pAction);
    }
    setProperty(PropertyName::IsDefinition, true);
    setCheckable(true);
    setAutoRaise(true);
    setToolButtonStyle(ToQtButtonStyle(m_pControlDefinition->GetButtonStyle()));
    setObjectName(ToQString(m_pControlDefinition->GetId()));
    connect(this, &QAbstractButton::clicked, this, &QtButton::OnButtonClicked);
    Subscribe(m_pControlDefinition.Get(), this);
}

QtButton::~QtButton()
{
    Unsubscribe(m_pControlDefinition.Get(), this);
}

IControlDefinition* QtButton::GetControlDefinition() const
{
    return m_pControlDefinition.Get();
}

void QtButton::UpdateStatus()
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtButton::UpdateStatus", L"pControlDefinition为空")))
        return;

    if (ApplyStatus(*this, *m_pControlDefinition))
        setChecked(m_pControlDefinition->IsChecked());
}

void QtButton::On(IControlDefinitionChangeEventArgs* pArgs)
{
    if (!Check(pArgs != nullptr, VESK_SITE("vesk::QtButton::On", L"pArgs为空")))
        return;
    if (pArgs->GetType() != ControlDefinitionChangeEventType::PropertyChanged)
        return;
    if (m_pControlDefinition == nullptr)
        return;

    const Qt::ToolButtonStyle style = ToQtButtonStyle(m_pControlDefinition->GetButtonStyle());
    if (toolButtonStyle() != style)
        setToolButtonStyle(style);
    if (defaultAction() == nullptr)
        return;

    const QPointer<QtButton> pSelf(this);
    const bool isDisabled = testAttribute(Qt::WA_ForceDisabled);
    UpdateAction(*m_pControlDefinition, defaultAction());
    // A tool button takes the enabled state of its action over whenever the action changes.
    if (pSelf != nullptr && isDisabled)
        setEnabled(false);
}

void QtButton::OnButtonClicked(bool checked)
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtButton::OnButtonClicked", L"pControlDefinition为空")))
        return;

    const QPointer<QObject> pSender(sender());
    const std::wstring commandId = m_pControlDefinition->GetCommandId();
    {
        const ControlDefinitionChangeByUser byUser(m_pControlDefinition->GetId());
        m_pControlDefinition->SetChecked(checked);
    }
    // Who heard of the change may have destroyed the button: then there is nobody to send for.
    if (pSender == nullptr)
        return;

    CommandParameters parameters;
    parameters.Add(L"Clicked", CommandParameterValue(checked));
    ProcessCommandUtil::ProcessRibbonBarCommand(commandId, parameters, pSender);
}

}
