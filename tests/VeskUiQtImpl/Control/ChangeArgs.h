#pragma once

#include "Control/IControlDefinitionChangeEvent.h"

#include <string>

namespace vesk::test
{

/// Change arguments with freely chosen values.
class ChangeArgs final : public IControlDefinitionChangeEventArgs
{
public:
    explicit ChangeArgs(int type = ControlDefinitionChangeEventType::PropertyChanged, int index = 0,
                        const IControlDefinition* pItem = nullptr)
        : m_type(type), m_index(index), m_pItem(pItem)
    {}

    int GetType() const override { return m_type; }
    int GetIndex() const override { return m_index; }
    const std::wstring& GetItemCaption() const override { return m_caption; }
    const IControlDefinition* GetItemDefinition() const override { return m_pItem; }
    bool IsChangeByUser() const override { return false; }

private:
    int m_type;
    int m_index;
    const IControlDefinition* m_pItem;
    std::wstring m_caption = L"item";
};

}
