#pragma once

#include "Control/ControlDefinitionChangeEvent.h"
#include "Control/IControlDefinition.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

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
/// `TItem` is the class or interface of the items, `TShown` what the definition's interface exposes
/// of them; it is a base of `TItem`. `function` is the qualified name under which an
/// invalid argument is reported: such a call changes nothing. A handler may destroy the definition,
/// so raising an event comes last. It may also remove the item it is notified of: a removed item
/// lives until the outermost change to its list has been delivered, for the handlers that have yet
/// to be notified.
template <class TItem, class TShown = TItem>
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
        return isInside ? GetOwned(m_items[static_cast<std::size_t>(index)]) : nullptr;
    }

    /// The first item with that id, null if there is none.
    TItem* Find(const std::wstring& id) const
    {
        if (m_byId.empty())
        {
            for (const TShown* pItem : m_items)
                m_byId.emplace(pItem->GetId(), GetOwned(pItem));
        }
        const auto found = m_byId.find(id);
        return found != m_byId.end() ? found->second : nullptr;
    }

    /// The items in order; the list itself, which changes with the items.
    const std::vector<const TShown*>& GetAll() const { return m_items; }

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
        if (!isAppended)
            m_byId.clear();
        else if (!m_byId.empty())
            m_byId.emplace(pItem->GetId(), pItem);
        m_event.RaiseItemsChanged(isAppended ? ControlDefinitionChangeEventType::Add
                                             : ControlDefinitionChangeEventType::Insert,
                                  index, caption, pItem, pRemoved);
    }

    void Delete(int index, const char* function)
    {
        if (!CheckItemIndex(index, GetCount() - 1, function))
            return;
        const auto place = m_items.begin() + index;
        TItem* pItem = GetOwned(*place);
        const std::wstring caption = pItem->GetCaption();
        const std::shared_ptr<Removed> pRemoved = GetRemoved();
        m_byId.clear();
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
        m_byId.clear();
        for (const TShown* pItem : std::exchange(m_items, {}))
            Remove(GetOwned(pItem), *pRemoved);
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

    TItem* GetOwned(const TShown* pItem) const { return m_owned.find(pItem)->second.Get(); }

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
    std::vector<const TShown*> m_items;
    std::unordered_map<const TShown*, OwnerPtr<TItem>> m_owned;

    /// The first item with each id, since the list was searched last; empty when it has changed.
    mutable std::unordered_map<std::wstring, TItem*> m_byId;
    std::weak_ptr<Removed> m_pRemoved;
};

}
