#include "VeskUiQtImpl/Control/QtButton.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "Journal/CommandParameters.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/Control/ButtonAction.h"
#include "VeskUiQtImpl/Control/ControlStatus.h"
#include "VeskUiQtImpl/Control/ControlSubscription.h"
#include "VeskUiQtImpl/Control/FileIcons.h"
#include "VeskUiQtImpl/Control/PropertyName.h"
#include "VeskUiQtImpl/ProcessCommandUtil.h"

#include "HostUi/QtText.h"

#include <QAction>
#include <QActionEvent>
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

}

/// What is being written to the action of a button; of that, only the address matters.
struct QtButton::Writing
{
    const QtButton* pButton;
    Part part;
};

QtButton::Writing QtButton::s_writing = {nullptr, Part::Icon};

QtButton::QtButton(OwnerPtr<ICommandButtonDefinition> pControlDefinition, QWidget* pParent)
    : QToolButton(pParent), m_pControlDefinition(std::move(pControlDefinition))
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtButton::QtButton", L"pControlDefinition为空")))
        return;

    const QPointer<QtButton> pSelf(this);
    QAction* pAction =
        CreateAction(*m_pControlDefinition, FileIcons::Get(m_pControlDefinition->GetIconPath()),
                     this, "vesk::CreateAction");
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
        ApplyAction(*defaultAction());
}

/// True if an icon need not be written: that would only make the action announce a change that is
/// none. A new icon makes the button adopt all of its action, the checked state and, unless the
/// button is disabled, the enabled state too: so these count.
bool QtButton::IsIconApplied(const QAction& action) const
{
    return FileIcons::IsCurrent(action.icon(), m_pControlDefinition->GetIconPath()) &&
           action.isChecked() == isChecked() && IsEnabledStateAdopted(action);
}

bool QtButton::IsEnabledStateAdopted(const QAction& action) const
{
    return action.isEnabled() || testAttribute(Qt::WA_ForceDisabled);
}

/// Handlers of a change of the action may delete it, or the button: each value is read just before
/// it is written, if both still exist.
void QtButton::ApplyAction(QAction& action)
{
    const bool isIconApplied = IsIconApplied(action);
    if (isIconApplied && action.isChecked() == m_pControlDefinition->IsChecked() &&
        IsSameText(action.text(), m_pControlDefinition->GetCaption()))
        return;

    const QScopedValueRollback<Writing> writing(s_writing, {this, Part::Icon});
    const QPointer<QtButton> pSelf(this);
    const QPointer<QAction> pAction(&action);
    if (!isIconApplied)
        pAction->setIcon(FileIcons::Get(m_pControlDefinition->GetIconPath()));
    s_writing.part = Part::Caption;
    if (pSelf != nullptr && pAction != nullptr)
        pAction->setText(ToQString(m_pControlDefinition->GetCaption()));
    s_writing.part = Part::CheckedState;
    if (pSelf != nullptr && pAction != nullptr)
        pAction->setChecked(m_pControlDefinition->IsChecked());
}

void QtButton::actionEvent(QActionEvent* pEvent)
{
    const bool isWritten = s_writing.pButton == this;
    const bool isKeptDisabled = isWritten && testAttribute(Qt::WA_ForceDisabled);
    if (isWritten && pEvent->type() == QEvent::ActionChanged &&
        pEvent->action() == defaultAction() && AdoptOnly(s_writing.part))
        return;

    const QPointer<QtButton> pSelf(this);
    QToolButton::actionEvent(pEvent);
    if (pSelf != nullptr && isKeptDisabled)
        setEnabled(false);
}

void QtButton::checkStateSet()
{
    QAbstractButton::checkStateSet();
}

/// Adopts one part of the action, where a tool button adopts everything again and announces all its
/// tips as changed. Returns false, having done nothing, if more than that part differs.
bool QtButton::AdoptOnly(Part part)
{
    const QAction& action = *defaultAction();
    if (part == Part::Icon || !IsEnabledStateAdopted(action))
        return false;
    if (part == Part::CheckedState)
    {
        setChecked(action.isChecked());
        return true;
    }

    // An ampersand is doubled, and an empty tip is that of the caption.
    const QString text = action.iconText();
    if (text.contains('&') || toolTip() != action.toolTip() || isChecked() != action.isChecked())
        return false;
    setText(text);
    return true;
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
