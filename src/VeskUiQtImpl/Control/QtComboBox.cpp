#include "VeskUiQtImpl/Control/QtComboBox.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/Control/ControlStatus.h"
#include "VeskUiQtImpl/Control/ControlSubscription.h"
#include "VeskUiQtImpl/Control/PropertyName.h"

#include "HostUi/QtText.h"

#include <QPointer>
#include <QScopedValueRollback>
#include <QStringList>
#include <QVariant>

namespace vesk
{

bool QtComboBox::s_isIndexChangeByUser = true;

QtComboBox::QtComboBox(OwnerPtr<IComboBoxDefinition> pControlDefinition, QWidget* pParent)
    : QComboBox(pParent), m_pControlDefinition(std::move(pControlDefinition))
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtComboBox::QtComboBox", L"m_pControlDefinition为空")))
        return;

    QStringList texts;
    for (const std::wstring& text : m_pControlDefinition->GetItems())
        texts.append(ToQString(text));
    // All at once: nobody knows the box yet, so nobody is notified of each.
    addItems(texts);
    setCurrentIndex(m_pControlDefinition->GetCurrentIndex());
    setProperty(PropertyName::IsDefinition, true);
    setObjectName(ToQString(m_pControlDefinition->GetId()));
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &QtComboBox::OnCurrentIndexChanged);
    Subscribe(m_pControlDefinition.Get(), this);
}

QtComboBox::~QtComboBox()
{
    Unsubscribe(m_pControlDefinition.Get(), this);
}

IControlDefinition* QtComboBox::GetControlDefinition() const
{
    return m_pControlDefinition.Get();
}

void QtComboBox::UpdateStatus()
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtComboBox::UpdateStatus", L"pControlDefinition为空")))
        return;

    ApplyStatus(*this, *m_pControlDefinition);
}

void QtComboBox::On(IControlDefinitionChangeEventArgs* pArgs)
{
    if (!Check(pArgs != nullptr, VESK_SITE("vesk::QtComboBox::On", L"pArgs为空")))
        return;
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtComboBox::On", L"m_pControlDefinition为空")))
        return;

    // Restores the previous value: a change echoed inside another one must not affect the outer
    // one.
    const QScopedValueRollback<bool> byDefinition(s_isIndexChangeByUser, false);
    switch (pArgs->GetType())
    {
    case ControlDefinitionChangeEventType::Add:
        insertItem(count(), ToQString(pArgs->GetItemCaption()));
        break;
    case ControlDefinitionChangeEventType::Insert:
        insertItem(pArgs->GetIndex(), ToQString(pArgs->GetItemCaption()));
        break;
    case ControlDefinitionChangeEventType::Delete:
        removeItem(pArgs->GetIndex());
        break;
    case ControlDefinitionChangeEventType::Clear:
        clear();
        break;
    case ControlDefinitionChangeEventType::PropertyChanged:
        ApplyProperties();
        break;
    default:
        break;
    }
}

void QtComboBox::ApplyProperties()
{
    const QPointer<QtComboBox> pSelf(this);
    if (currentIndex() != m_pControlDefinition->GetCurrentIndex())
        setCurrentIndex(m_pControlDefinition->GetCurrentIndex());
    UpdateVisible(*this, m_pControlDefinition->IsVisible());
    if (pSelf != nullptr)
        UpdateEnabled(*this, m_pControlDefinition->IsEnabled());
}

void QtComboBox::OnCurrentIndexChanged(int index)
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtComboBox::OnCurrentIndexChanged", L"pControlDefinition为空")))
        return;
    if (m_pControlDefinition->GetCurrentIndex() == index)
        return;
    if (!s_isIndexChangeByUser)
    {
        m_pControlDefinition->SetCurrentIndex(index);
        return;
    }

    const ControlDefinitionChangeByUser byUser(m_pControlDefinition->GetId());
    m_pControlDefinition->SetCurrentIndex(index);
}

}
