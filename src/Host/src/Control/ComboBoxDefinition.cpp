#include "Control/ComboBoxDefinition.h"

#include "Control/ItemDefinitionList.h"
#include "Warnings/HostSite.h"

#include <algorithm>
#include <utility>

namespace vesk
{

ComboBoxDefinition::ComboBoxDefinition(std::wstring id) : ControlDefinition(std::move(id)) {}

std::vector<std::wstring> ComboBoxDefinition::GetItems() const
{
    return {m_items.begin(), m_items.end()};
}

void ComboBoxDefinition::SetCurrentIndex(int index)
{
    if (GetEvent().RefuseFromBehind())
        return;
    if (Check(index >= -1 && index < GetCount(),
              VESK_HOST_SITE("vesk::ComboBoxDefinition::SetCurrentIndex", L"index不正确")))
        Change(m_currentIndex, index);
}

int ComboBoxDefinition::GetCurrentIndex() const
{
    return m_currentIndex;
}

void ComboBoxDefinition::AddItem(const std::wstring& text)
{
    InsertItem(GetCount(), text);
}

void ComboBoxDefinition::InsertItem(int index, const std::wstring& text)
{
    if (!CheckItemIndex(index, GetCount(), "vesk::ComboBoxDefinition::InsertItem"))
        return;
    const std::wstring caption = text;
    const bool isAppended = index == GetCount();
    if (m_items.empty())
        m_currentIndex = 0;
    else if (index <= m_currentIndex)
        ++m_currentIndex;
    m_items.insert(m_items.begin() + index, caption);
    GetEvent().RaiseItemsChanged(isAppended ? ControlDefinitionChangeEventType::Add
                                            : ControlDefinitionChangeEventType::Insert,
                                 index, caption, nullptr);
}

void ComboBoxDefinition::DeleteItem(int index)
{
    if (!CheckItemIndex(index, GetCount() - 1, "vesk::ComboBoxDefinition::DeleteItem"))
        return;
    const auto place = m_items.begin() + index;
    const std::wstring text = std::move(*place);
    m_items.erase(place);
    if (index < m_currentIndex)
        --m_currentIndex;
    m_currentIndex = std::min(m_currentIndex, GetCount() - 1);
    GetEvent().RaiseItemsChanged(ControlDefinitionChangeEventType::Delete, index, text, nullptr);
}

void ComboBoxDefinition::ClearItems()
{
    if (m_items.empty())
        return;
    m_items.clear();
    m_currentIndex = -1;
    GetEvent().RaiseItemsChanged(ControlDefinitionChangeEventType::Clear, -1, std::wstring(),
                                 nullptr);
}

}
