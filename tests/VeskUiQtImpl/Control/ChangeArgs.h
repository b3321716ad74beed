#pragma once

#include "Control/IControlDefinitionChangeEvent.h"

namespace vesk::test
{

/// The arguments of a change, made by hand.
class ChangeArgs final : public IControlDefinitionChangeEventArgs
{
public:
    explicit ChangeArgs(int type = ControlDefinitionChangeEventType::PropertyChanged) : m_type(type)
    {}

    int GetType() const override { return m_type; }
    int GetIndex() const override { return 0; }
    std::wstring GetItemCaption() const override { return L"item"; }
    const IControlDefinition* GetItemDefinition() const override { return nullptr; }
    bool IsChangeByUser() const override { return false; }

private:
    int m_type;
};

}
