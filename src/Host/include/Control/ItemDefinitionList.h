#pragma once

#include "Control/ControlDefinitionChangeEvent.h"
#include "Control/IControlDefinition.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace vesk
{

/// Reports an index outside 0 to `last` as a debug warning of `function`, and then returns false.
VESK_HOST_API bool CheckItemIndex(int index, int last, const char* function);

/// Reports a null item as a debug warning of `function`, and then returns false.
VESK_HOST_API bool CheckItem(const IControlDefinition* pItem, const char* function);

/// The items that a definition owns. Each change to the list raises one event of the definition;
/// each change to an item raises the definition's PropertyChanged.
///
/// `TItem` is the class or interface of the items. `function` is the qualified name under which an
/// invalid argument is reported: such a call changes nothing. A handler may destroy the definition,
/// so raising an event comes last. It may also remove the item it is notified of: a removed item
/// lives until the outermost change to its list has been delivered, for the handlers that have yet
/// to be notified.
template <class TItem>
class ItemDefinitionList final : private IControlDefinitionChangeEventHandler
{
public:
    /// `event` belongs to the definition and outlives the list.
    explicit ItemDefinitionList(ControlDefinitionChangeEvent& event) : m_event(event) {}

    int GetCount() const { return static_cast<int>(m_items.size()); }

    /// Null if the index is out of range.
    TItem* Get(int index) const
    {
        const bool isInside = index >= 0 && index < GetCount();
        return isInside ? m_items[static_cast<std::size_t>(index)] : nullptr;
    }

    /// The first item with that id, null if there is none.
    TItem* Find(const std::wstring& id) const
    {
        const auto found = std::find_if(m_items.begin(), m_items.end(),
                                        [&id](const TItem* pItem) { return pItem->GetId() == id; });
        return found != m_items.end() ? *found : nullptr;
    }

    /// The items, as the type that the definition's interface exposes.
    template <class TShown>
    std::vector<const TShown*> GetAll() const
    {
        return {m_items.begin(), m_items.end()};
    }

    /// Inserts an item before the one at `index`; at the end it is appended.
    void Insert(int index, OwnerPtr<TItem> opItem, const char* function)
    {
        if (!CheckItem(opItem.Get(), function) || !CheckItemIndex(index, GetCount(), function))
            return;
        TItem* pItem = opItem.Get();
        const bool isAppended = index == GetCount();
        const std::wstring caption = pItem->GetCaption();
        const std::shared_ptr<Removed> pRemoved = GetRemoved();
        if (IControlDefinitionChangeEvent* pItemEvent = FindEvent(*pItem))
            pItemEvent->Add(this);
        m_items.insert(m_items.begin() + index, pItem);
        m_owned.emplace(pItem, std::move(opItem));
        m_event.RaiseItemsChanged(isAppended ? ControlDefinitionChangeEventType::Add
                                             : ControlDefinitionChangeEventType::Insert,
                                  index, caption, pItem, pRemoved);
    }

    void Delete(int index, const char* function)
    {
        if (!CheckItemIndex(index, GetCount() - 1, function))
            return;
        const auto place = m_items.begin() + index;
        TItem* pItem = *place;
        const std::wstring caption = pItem->GetCaption();
        const std::shared_ptr<Removed> pRemoved = GetRemoved();
        m_items.erase(place);
        Remove(pItem, *pRemoved);
        m_event.RaiseItemsChanged(ControlDefinitionChangeEventType::Delete, index, caption, pItem,
                                  pRemoved);
    }

    /// Does nothing if the list is empty.
    void Clear()
    {
        if (m_items.empty())
            return;
        const std::shared_ptr<Removed> pRemoved = GetRemoved();
        for (TItem* pItem : std::exchange(m_items, {}))
            Remove(pItem, *pRemoved);
        m_event.RaiseItemsChanged(ControlDefinitionChangeEventType::Clear, -1, std::wstring(),
                                  nullptr, pRemoved);
    }

private:
    using Removed = std::vector<OwnerPtr<TItem>>;

    /// The removed items that handlers may still be notified of; freed when the last call that
    /// holds them returns.
    std::shared_ptr<Removed> GetRemoved()
    {
        std::shared_ptr<Removed> pRemoved = m_pRemoved.lock();
        if (pRemoved == nullptr)
            m_pRemoved = pRemoved = std::make_shared<Removed>();
        return pRemoved;
    }

    void Remove(TItem* pItem, Removed& removed)
    {
        if (IControlDefinitionChangeEvent* pItemEvent = FindEvent(*pItem))
            pItemEvent->Delete(this);
        const auto owned = m_owned.find(pItem);
        removed.push_back(std::move(owned->second));
        m_owned.erase(owned);
    }

    static IControlDefinitionChangeEvent* FindEvent(TItem& item)
    {
        const auto* pSource = dynamic_cast<const IControlDefinitionChangeEventSource*>(&item);
        return pSource != nullptr ? pSource->GetControlDefinitionChangeEvent() : nullptr;
    }

    void On(IControlDefinitionChangeEventArgs*) override { m_event.RaisePropertyChanged(); }

    ControlDefinitionChangeEvent& m_event;

    // The order is kept apart from the owners, because shifting plain pointers in a long list is
    // cheap.
    std::vector<TItem*> m_items;
    std::unordered_map<TItem*, OwnerPtr<TItem>> m_owned;
    std::weak_ptr<Removed> m_pRemoved;
};

}
