#include "VeskUiQtImpl/Control/QtRadioButtonGroup.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/Control/ButtonGroupItems.h"
#include "VeskUiQtImpl/Control/ControlStatus.h"
#include "VeskUiQtImpl/Control/ControlSubscription.h"
#include "VeskUiQtImpl/Control/PropertyName.h"

#include "HostUi/QtText.h"

#include <QPointer>
#include <QRadioButton>
#include <QVariant>

#include <vector>

namespace vesk
{

QtRadioButtonGroup::QtRadioButtonGroup(OwnerPtr<IRadioButtonGroupDefinition> pControlDefinition,
                                       QWidget* pParent)
    : QButtonGroup(pParent), m_pControlDefinition(std::move(pControlDefinition)), m_pParent(pParent)
{
    if (!Check(m_pControlDefinition != nullptr && m_pParent != nullptr,
               VESK_SITE("vesk::QtRadioButtonGroup::QtRadioButtonGroup",
                         L"m_pControlDefinition或pParent是空指针")))
        return;

    setProperty(PropertyName::IsDefinition, true);
    setExclusive(true);
    const QPointer<QtRadioButtonGroup> pSelf(this);
    // A copy: a report may run an event loop, in which buttons may be added or removed.
    const std::vector<const IRadioButtonDefinition*> definitions =
        m_pControlDefinition->GetRadioButtonDefinitions();
    for (const IRadioButtonDefinition* pDefinition : definitions)
    {
        AddRadioButton(pDefinition);
        // A destroyed parent destroys its group.
        if (pSelf == nullptr)
            return;
    }
    connect(this, QOverload<QAbstractButton*>::of(&QButtonGroup::buttonClicked), this,
            &QtRadioButtonGroup::OnButtonClicked);
    Subscribe(m_pControlDefinition.Get(), this);
}

QtRadioButtonGroup::~QtRadioButtonGroup()
{
    Unsubscribe(m_pControlDefinition.Get(), this);
}

std::vector<QRadioButton*> QtRadioButtonGroup::GetAllControls() const
{
    return m_radioButtons;
}

IControlDefinition* QtRadioButtonGroup::GetControlDefinition() const
{
    return m_pControlDefinition.Get();
}

void QtRadioButtonGroup::UpdateStatus()
{
    constexpr char Function[] = "vesk::QtRadioButtonGroup::UpdateStatus";
    if (!Check(m_pControlDefinition != nullptr, VESK_SITE(Function, L"pDefinition为空")))
        return;

    const auto never = [](const QRadioButton&, const IRadioButtonDefinition&) { return false; };
    const auto apply = [](QRadioButton& radioButton, const IRadioButtonDefinition& definition,
                          auto isAlive) { ApplyStatus(radioButton, definition, isAlive); };
    const auto items = [this]() -> const auto&
    {
        return m_pControlDefinition->GetRadioButtonDefinitions();
    };
    ButtonGroupItems(*this, m_pParent, m_radioButtons)
        .ForEach(items, never, apply, L"radioButtonDefines[i] && radioButtonControls[i]为空",
                 Function);
}

void QtRadioButtonGroup::On(IControlDefinitionChangeEventArgs* pArgs)
{
    constexpr char Function[] = "vesk::QtRadioButtonGroup::On";
    if (!Check(pArgs != nullptr, VESK_SITE(Function, L"pArgs为空")))
        return;
    const int type = pArgs->GetType();
    // Without a definition there are no items; only a change of states still reports the missing
    // definition.
    if (m_pControlDefinition == nullptr &&
        type != ControlDefinitionChangeEventType::PropertyChanged)
        return;

    switch (type)
    {
    case ControlDefinitionChangeEventType::Add:
        OnControlDefinitionChangeEventTypeAdd(pArgs);
        break;
    case ControlDefinitionChangeEventType::Insert:
        OnControlDefinitionChangeEventTypeInsert(pArgs);
        break;
    case ControlDefinitionChangeEventType::Delete:
        ButtonGroupItems(*this, m_pParent, m_radioButtons).OnDelete(pArgs->GetIndex(), Function);
        break;
    case ControlDefinitionChangeEventType::Clear:
        ButtonGroupItems(*this, m_pParent, m_radioButtons).OnClear(Function);
        break;
    case ControlDefinitionChangeEventType::PropertyChanged:
        ApplyStates();
        break;
    default:
        break;
    }
}

void QtRadioButtonGroup::ApplyStates()
{
    constexpr char Function[] = "vesk::QtRadioButtonGroup::On";
    if (!Check(m_pControlDefinition != nullptr, VESK_SITE(Function, L"pControlDefinition为空")))
        return;

    QString current = ToQString(m_pControlDefinition->GetCurrentRadioButtonId());
    const auto isShown = [&current](const QRadioButton& radioButton,
                                    const IRadioButtonDefinition& definition) {
        return (radioButton.isChecked() || radioButton.objectName() != current) &&
               HasStatus(radioButton, definition);
    };
    const auto apply = [this, &current](QRadioButton& radioButton,
                                        const IRadioButtonDefinition& definition, auto isAlive) {
        // No button is unchecked here: the group ensures that at most one is checked.
        const std::wstring currentId = m_pControlDefinition->GetCurrentRadioButtonId();
        if (ToWide(radioButton.objectName()) == currentId && !radioButton.isChecked())
            radioButton.setChecked(true);
        if (isAlive())
            UpdateVisible(radioButton, definition.IsVisible());
        if (isAlive())
            UpdateEnabled(radioButton, definition.IsEnabled());
        // A handler may have made another button current.
        if (isAlive())
            current = ToQString(m_pControlDefinition->GetCurrentRadioButtonId());
    };
    const auto items = [this]() -> const auto&
    {
        return m_pControlDefinition->GetRadioButtonDefinitions();
    };
    ButtonGroupItems(*this, m_pParent, m_radioButtons)
        .ForEach(items, isShown, apply,
                 L"radioButtonGroupDefinition[i] && radioButtonControls[i]为空", Function);
}

QRadioButton* QtRadioButtonGroup::AddRadioButton(const IRadioButtonDefinition* pDefinition)
{
    constexpr char Function[] = "vesk::QtRadioButtonGroup::AddRadioButton";
    if (!Check(pDefinition != nullptr, VESK_SITE(Function, L"pDefinition为空")))
        return nullptr;
    const QPointer<QtRadioButtonGroup> pSelf(this);
    const QPointer<QRadioButton> pRadioButton(CreateControl(pDefinition));
    if (pSelf == nullptr ||
        !Check(pRadioButton != nullptr, VESK_SITE(Function, L"pRadioButton为空")))
        return nullptr;

    // This unchecks another button outside any group, and a handler may react to that.
    if (pDefinition->GetId() == m_pControlDefinition->GetCurrentRadioButtonId())
        pRadioButton->setChecked(true);
    if (pSelf == nullptr || pRadioButton == nullptr)
        return nullptr;
    return ButtonGroupItems(*this, m_pParent, m_radioButtons).Append(pRadioButton.data());
}

QRadioButton* QtRadioButtonGroup::CreateControl(const IRadioButtonDefinition* pDefinition)
{
    const QPointer<QtRadioButtonGroup> pSelf(this);
    const QPointer<QRadioButton> pRadioButton(CreateItemButton<QRadioButton>(
        m_pParent, pDefinition, "vesk::QtRadioButtonGroup::CreateControl"));
    if (pRadioButton == nullptr)
        return nullptr;

    ApplyStatus(*pRadioButton, *pDefinition,
                [&] { return pSelf != nullptr && pRadioButton != nullptr; });
    return pRadioButton;
}

void QtRadioButtonGroup::OnControlDefinitionChangeEventTypeAdd(
    IControlDefinitionChangeEventArgs* pArgs)
{
    const auto append = [this](const IRadioButtonDefinition* pItem) {
        return AddRadioButton(pItem);
    };
    ButtonGroupItems(*this, m_pParent, m_radioButtons)
        .OnAdd<IRadioButtonDefinition>(
            pArgs, append, "vesk::QtRadioButtonGroup::OnControlDefinitionChangeEventTypeAdd");
}

void QtRadioButtonGroup::OnControlDefinitionChangeEventTypeInsert(
    IControlDefinitionChangeEventArgs* pArgs)
{
    const auto create = [this](const IRadioButtonDefinition* pItem) {
        return CreateControl(pItem);
    };
    ButtonGroupItems(*this, m_pParent, m_radioButtons)
        .OnInsert<IRadioButtonDefinition>(
            pArgs, create, L"pRadioControl为空",
            "vesk::QtRadioButtonGroup::OnControlDefinitionChangeEventTypeInsert");
}

void QtRadioButtonGroup::OnButtonClicked(QAbstractButton* pButton)
{
    constexpr char Function[] = "vesk::QtRadioButtonGroup::OnButtonClicked";
    if (!Check(m_pControlDefinition != nullptr, VESK_SITE(Function, L"pControlDefinition为空")))
        return;
    const auto* pRadioButton = qobject_cast<QRadioButton*>(pButton);
    if (!Check(pRadioButton != nullptr, VESK_SITE(Function, L"pCheckBox为空")))
        return;

    RadioButtonGroupStateChangeFlag::m_stateChangeByUser = true;
    const RadioButtonGroupStateChangeFlag resetFlag;
    const std::wstring radioButtonId = ToWide(pRadioButton->objectName());
    const ControlDefinitionChangeByUser byUser(m_pControlDefinition->GetId());
    m_pControlDefinition->SetCurrentRadioButtonId(radioButtonId);
}

}
