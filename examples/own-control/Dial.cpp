#include "Dial.h"

#include <Control/ControlDefinitionChangeByUser.h>
#include <HostUi/QtText.h>

#include <QSignalBlocker>

#include <utility>

using namespace vesk;

Dial::Dial(OwnerPtr<DialDefinition> opDefinition) : m_opDefinition(std::move(opDefinition))
{
    setObjectName(ToQString(m_opDefinition->GetId()));
    setToolTip(ToQString(m_opDefinition->GetTooltip()));
    setRange(0, 100);
    setValue(m_opDefinition->GetValue());
    connect(this, &QDial::valueChanged, this, &Dial::OnValueChanged);
    m_opDefinition->GetControlDefinitionChangeEvent()->Add(this);
}

Dial::~Dial()
{
    m_opDefinition->GetControlDefinitionChangeEvent()->Delete(this);
}

IControlDefinition* Dial::GetControlDefinition() const
{
    return m_opDefinition.Get();
}

void Dial::UpdateStatus()
{
    setVisible(m_opDefinition->IsVisible());
    setEnabled(m_opDefinition->IsEnabled());
}

void Dial::On(IControlDefinitionChangeEventArgs*)
{
    const QSignalBlocker blocker(this);
    setValue(m_opDefinition->GetValue());
    UpdateStatus();
}

/// The user has turned the dial. A handler of the change may destroy it: nothing comes after.
void Dial::OnValueChanged(int value)
{
    const ControlDefinitionChangeByUser byUser(m_opDefinition->GetId());
    m_opDefinition->SetValue(value);
}
