#include "VeskUiQtImpl/Control/QtButton.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "Journal/CommandParameters.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/Control/ButtonAction.h"
#include "VeskUiQtImpl/Control/ControlStatus.h"
#include "VeskUiQtImpl/Control/ControlSubscription.h"
#include "VeskUiQtImpl/Control/PropertyName.h"
#include "VeskUiQtImpl/ProcessCommandUtil.h"

#include "HostUi/QtText.h"

#include <QAction>
#include <QIcon>
#include <QPointer>
#include <QScopedValueRollback>
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

/// The button whose definition is currently being applied to its action; only its address matters.
const QtButton* s_pApplied = nullptr;

}

QtButton::QtButton(OwnerPtr<ICommandButtonDefinition> pControlDefinition, QWidget* pParent)
    : QToolButton(pParent), m_pControlDefinition(std::move(pControlDefinition))
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtButton::QtButton", L"pControlDefinition为空")))
        return;

    const QPointer<QtButton> pSelf(this);
    QAction* pAction = CreateAction(*m_pControlDefinition, this, "vesk::CreateAction");
    if (pSelf == nullptr)
        return;
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
    if (defaultAction() != nullptr)
        ApplyAction();
}

/// Writes all three whether they changed or not. Handlers of a change of the action may delete it,
/// or the button: each value is read just before it is written, if both still exist.
void QtButton::ApplyAction()
{
    const QScopedValueRollback<const QtButton*> applied(s_pApplied, this);
    const QPointer<QtButton> pSelf(this);
    const QPointer<QAction> pAction(defaultAction());
    pAction->setIcon(QIcon(ToQString(m_pControlDefinition->GetIconPath())));
    if (pSelf != nullptr && pAction != nullptr)
        pAction->setText(ToQString(m_pControlDefinition->GetCaption()));
    if (pSelf != nullptr && pAction != nullptr)
        pAction->setChecked(m_pControlDefinition->IsChecked());
}

void QtButton::actionEvent(QActionEvent* pEvent)
{
    const bool isKeptDisabled = s_pApplied == this && testAttribute(Qt::WA_ForceDisabled);
    const QPointer<QtButton> pSelf(this);
    QToolButton::actionEvent(pEvent);
    if (pSelf != nullptr && isKeptDisabled)
        setEnabled(false);
}

void QtButton::OnButtonClicked(bool checked)
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtButton::OnButtonClicked", L"pControlDefinition为空")))
        return;

    const QPointer<QtButton> pSelf(this);
    {
        const ControlDefinitionChangeByUser byUser(m_pControlDefinition->GetId());
        m_pControlDefinition->SetChecked(checked);
    }
    // A handler of the change may have destroyed the button; then there is no sender left.
    if (pSelf == nullptr)
        return;

    // The button may be gone after the command.
    const std::wstring commandId = m_pControlDefinition->GetCommandId();
    CommandParameters parameters;
    parameters.Add(L"Clicked", CommandParameterValue(checked));
    ProcessCommandUtil::ProcessRibbonBarCommand(commandId, parameters, sender());
}

}
