#pragma once

#include <Control/ControlDefinition.h>
#include <Control/IControl.h>
#include <Control/IControlDefinition.h>
#include <Control/IControlDefinitionChangeEvent.h>
#include <Foundation/OwnerPtr.h>

#include <QDial>

/// A whole number from 0 to 100, initially 0.
class DialDefinition final : public vesk::ControlDefinition<vesk::IControlDefinition>
{
public:
    explicit DialDefinition(std::wstring id) : ControlDefinition(std::move(id)) {}

    int GetValue() const { return m_value; }
    void SetValue(int value) { Change(m_value, value); }

private:
    int m_value = 0;
};

/// Shows a dial definition.
class Dial final : public QDial,
                   public vesk::IControl,
                   public vesk::IControlDefinitionChangeEventHandler
{
public:
    explicit Dial(vesk::OwnerPtr<DialDefinition> opDefinition);
    ~Dial() override;

    vesk::IControlDefinition* GetControlDefinition() const override;

    /// Applies the definition's visibility and enabled state.
    void UpdateStatus() override;

    /// Follows a change of the definition.
    void On(vesk::IControlDefinitionChangeEventArgs* pArgs) override;

private:
    void OnValueChanged(int value);

    vesk::OwnerPtr<DialDefinition> m_opDefinition;
};
