#include "VeskUiQtImpl/Control/QtLabel.h"

#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/Control/ControlStatus.h"
#include "VeskUiQtImpl/Control/ControlSubscription.h"
#include "VeskUiQtImpl/Control/PropertyName.h"

#include "HostUi/QtText.h"

#include <QVariant>

namespace vesk
{

QtLabel::QtLabel(OwnerPtr<ILabelDefinition> pControlDefinition, QWidget* pParent)
    : QLabel(pParent), m_pControlDefinition(std::move(pControlDefinition))
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtLabel::QtLabel", L"pControlDefinition是空指针")))
        return;

    setObjectName(ToQString(m_pControlDefinition->GetId()));
    setText(ToQString(m_pControlDefinition->GetCaption()));
    setToolTip(ToQString(m_pControlDefinition->GetTooltip()));
    setProperty(PropertyName::IsDefinition, true);
    Subscribe(m_pControlDefinition.Get(), this);
}

QtLabel::~QtLabel()
{
    Unsubscribe(m_pControlDefinition.Get(), this);
}

IControlDefinition* QtLabel::GetControlDefinition() const
{
    return m_pControlDefinition.Get();
}

void QtLabel::UpdateStatus()
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtLabel::UpdateStatus", L"pControlDefinition为空")))
        return;

    ApplyStatus(*this, *m_pControlDefinition);
}

void QtLabel::On(IControlDefinitionChangeEventArgs* pArgs)
{
    if (!Check(pArgs != nullptr, VESK_SITE("vesk::QtLabel::On", L"pArgs为空")))
        return;
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtLabel::On", L"m_pControlDefinition为空")))
        return;
    if (pArgs->GetType() != ControlDefinitionChangeEventType::PropertyChanged)
        return;

    // A label drops a text that it has already; this saves the conversion.
    const std::wstring& caption = m_pControlDefinition->GetCaption();
    if (!IsSameText(text(), caption))
        setText(ToQString(caption));
    ApplyStatus(*this, *m_pControlDefinition);
}

}
