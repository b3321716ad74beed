#include "VeskUiQtImpl/Control/QtCheckBoxGroup.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/Control/ButtonGroupItems.h"
#include "VeskUiQtImpl/Control/ControlStatus.h"
#include "VeskUiQtImpl/Control/ControlSubscription.h"
#include "VeskUiQtImpl/Control/PropertyName.h"

#include "HostUi/QtText.h"

#include <QCheckBox>
#include <QPointer>
#include <QVariant>

#include <vector>

namespace vesk
{
namespace
{

// Only two states are mapped, in both directions: a box is never shown partially checked.

Qt::CheckState ToQtCheckState(int hostState)
{
    return hostState == 0 ? Qt::Unchecked : Qt::Checked;
}

int ToHostCheckState(Qt::CheckState state)
{
    return state == Qt::Unchecked ? 0 : 2;
}

}

QtCheckBoxGroup::QtCheckBoxGroup(OwnerPtr<ICheckBoxGroupDefinition> pControlDefinition,
                                 QWidget* pParent)
    : QButtonGroup(pParent), m_pControlDefinition(std::move(pControlDefinition)), m_pParent(pParent)
{
    if (!Check(m_pControlDefinition != nullptr && m_pParent != nullptr,
               VESK_SITE("vesk::QtCheckBoxGroup::QtCheckBoxGroup",
                         L"m_pControlDefinition或pParent是空指针")))
        return;

    setProperty(PropertyName::IsDefinition, true);
    setExclusive(false);
    const QPointer<QtCheckBoxGroup> pSelf(this);
    // A copy: a report may run an event loop, in which boxes may be added or removed.
    const std::vector<const ICheckBoxDefinition*> definitions =
        m_pControlDefinition->GetCheckBoxDefinitions();
    for (const ICheckBoxDefinition* pDefinition : definitions)
    {
        AddCheckBox(pDefinition);
        // A destroyed parent destroys its group.
        if (pSelf == nullptr)
            return;
    }
    connect(this, QOverload<QAbstractButton*>::of(&QButtonGroup::buttonClicked), this,
            &QtCheckBoxGroup::OnButtonClicked);
    Subscribe(m_pControlDefinition.Get(), this);
}

QtCheckBoxGroup::~QtCheckBoxGroup()
{
    Unsubscribe(m_pControlDefinition.Get(), this);
}

std::vector<QCheckBox*> QtCheckBoxGroup::GetAllControls() const
{
    return m_checkBoxes;
}

IControlDefinition* QtCheckBoxGroup::GetControlDefinition() const
{
    return m_pControlDefinition.Get();
}

void QtCheckBoxGroup::UpdateStatus()
{
    constexpr char Function[] = "vesk::QtCheckBoxGroup::UpdateStatus";
    if (!Check(m_pControlDefinition != nullptr, VESK_SITE(Function, L"pDefinition为空")))
        return;

    const auto never = [](const QCheckBox&, const ICheckBoxDefinition&) { return false; };
    const auto apply = [](QCheckBox& checkBox, const ICheckBoxDefinition& definition,
                          auto isAlive) { ApplyStatus(checkBox, definition, isAlive); };
    const auto items = [this]() -> const auto&
    {
        return m_pControlDefinition->GetCheckBoxDefinitions();
    };
    ButtonGroupItems(*this, m_pParent, m_checkBoxes)
        .ForEach(items, never, apply, L"checkBoxDefines[i] && checkBoxControls[i]为空", Function);
}

void QtCheckBoxGroup::On(IControlDefinitionChangeEventArgs* pArgs)
{
    constexpr char Function[] = "vesk::QtCheckBoxGroup::On";
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
        ButtonGroupItems(*this, m_pParent, m_checkBoxes).OnDelete(pArgs->GetIndex(), Function);
        break;
    case ControlDefinitionChangeEventType::Clear:
        ButtonGroupItems(*this, m_pParent, m_checkBoxes).OnClear(Function);
        break;
    case ControlDefinitionChangeEventType::PropertyChanged:
        ApplyStates();
        break;
    default:
        break;
    }
}

void QtCheckBoxGroup::ApplyStates()
{
    constexpr char Function[] = "vesk::QtCheckBoxGroup::On";
    if (!Check(m_pControlDefinition != nullptr, VESK_SITE(Function, L"pControlDefinition为空")))
        return;

    const auto isShown = [](const QCheckBox& checkBox, const ICheckBoxDefinition& definition) {
        return checkBox.checkState() == ToQtCheckState(definition.GetCheckState()) &&
               HasStatus(checkBox, definition);
    };
    const auto apply = [](QCheckBox& checkBox, const ICheckBoxDefinition& definition,
                          auto isAlive) {
        const Qt::CheckState state = ToQtCheckState(definition.GetCheckState());
        if (checkBox.checkState() != state)
            checkBox.setCheckState(state);
        if (isAlive())
            UpdateVisible(checkBox, definition.IsVisible());
        if (isAlive())
            UpdateEnabled(checkBox, definition.IsEnabled());
    };
    const auto items = [this]() -> const auto&
    {
        return m_pControlDefinition->GetCheckBoxDefinitions();
    };
    ButtonGroupItems(*this, m_pParent, m_checkBoxes)
        .ForEach(items, isShown, apply, L"checkBoxDefines[i] && checkBoxControls[i]为空", Function);
}

QCheckBox* QtCheckBoxGroup::AddCheckBox(const ICheckBoxDefinition* pDefinition)
{
    constexpr char Function[] = "vesk::QtCheckBoxGroup::AddCheckBox";
    if (!Check(pDefinition != nullptr, VESK_SITE(Function, L"pDefinition为空")))
        return nullptr;
    const QPointer<QtCheckBoxGroup> pSelf(this);
    QCheckBox* pCheckBox = CreateControl(pDefinition);
    if (pSelf == nullptr || !Check(pCheckBox != nullptr, VESK_SITE(Function, L"pCheckBox为空")))
        return nullptr;

    return ButtonGroupItems(*this, m_pParent, m_checkBoxes).Append(pCheckBox);
}

QCheckBox* QtCheckBoxGroup::CreateControl(const ICheckBoxDefinition* pDefinition)
{
    const QPointer<QtCheckBoxGroup> pSelf(this);
    const QPointer<QCheckBox> pCheckBox(CreateItemButton<QCheckBox>(
        m_pParent, pDefinition, "vesk::QtCheckBoxGroup::CreateControl"));
    if (pCheckBox == nullptr)
        return nullptr;

    const Qt::CheckState state = ToQtCheckState(pDefinition->GetCheckState());
    if (pCheckBox->checkState() != state)
        pCheckBox->setCheckState(state);
    ApplyStatus(*pCheckBox, *pDefinition, [&] { return pSelf != nullptr && pCheckBox != nullptr; });
    return pCheckBox;
}

void QtCheckBoxGroup::OnControlDefinitionChangeEventTypeAdd(
    IControlDefinitionChangeEventArgs* pArgs)
{
    const auto append = [this](const ICheckBoxDefinition* pItem) { return AddCheckBox(pItem); };
    ButtonGroupItems(*this, m_pParent, m_checkBoxes)
        .OnAdd<ICheckBoxDefinition>(pArgs, append,
                                    "vesk::QtCheckBoxGroup::OnControlDefinitionChangeEventTypeAdd");
}

void QtCheckBoxGroup::OnControlDefinitionChangeEventTypeInsert(
    IControlDefinitionChangeEventArgs* pArgs)
{
    const auto create = [this](const ICheckBoxDefinition* pItem) { return CreateControl(pItem); };
    ButtonGroupItems(*this, m_pParent, m_checkBoxes)
        .OnInsert<ICheckBoxDefinition>(
            pArgs, create, L"pCheckBoxControl为空",
            "vesk::QtCheckBoxGroup::OnControlDefinitionChangeEventTypeInsert");
}

void QtCheckBoxGroup::OnButtonClicked(QAbstractButton* pButton)
{
    constexpr char Function[] = "vesk::QtCheckBoxGroup::OnButtonClicked";
    if (!Check(m_pControlDefinition != nullptr, VESK_SITE(Function, L"pControlDefinition为空")))
        return;
    const auto* pCheckBox = qobject_cast<QCheckBox*>(pButton);
    if (!Check(pCheckBox != nullptr, VESK_SITE(Function, L"pCheckBox为空")))
        return;

    const std::wstring checkBoxId = ToWide(pCheckBox->objectName());
    const int checkState = ToHostCheckState(pCheckBox->checkState());
    const ControlDefinitionChangeByUser byUser(m_pControlDefinition->GetId());
    m_pControlDefinition->SetCheckState(checkBoxId, checkState);
}

}
