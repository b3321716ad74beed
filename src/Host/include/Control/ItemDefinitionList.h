#pragma once

#include "Control/ControlDefinitionChangeEvent.h"
#include "Control/IControlDefinition.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

#include <cstddef>
#include <iterator>
#include <list>
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

    /// The number of items.
    int GetCount() const { return static_cast<int>(m_items.size()); }

    /// Null if the index is out of range.
    TItem* Get(int index) const
    {
        const bool isInside = index >= 0 && index < GetCount();
        return isInside ? m_owners[static_cast<std::size_t>(index)]->Get() : nullptr;
    }

    /// The first item with that id, null if there is none.
    TItem* Find(const std::wstring& id) const
    {
        if (m_byId.empty())
        {
            for (const Owner owner : m_owners)
                m_byId.emplace((*owner)->GetId(), owner->Get());
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
        m_owned.push_back(std::move(opItem));
        m_owners.insert(m_owners.begin() + index, std::prev(m_owned.end()));
        m_items.insert(m_items.begin() + index, pItem);
        if (!isAppended)
            m_byId.clear();
        else if (!m_byId.empty())
            m_byId.emplace(pItem->GetId(), pItem);
        m_event.RaiseItemsChanged(isAppended ? ControlDefinitionChangeEventType::Add
                                             : ControlDefinitionChangeEventType::Insert,
                                  index, caption, pItem, pRemoved);
    }

    /// Removes the item at an index.
    void Delete(int index, const char* function)
    {
        if (!CheckItemIndex(index, GetCount() - 1, function))
            return;
        TItem* pItem = Get(index);
        const std::wstring caption = pItem->GetCaption();
        const std::shared_ptr<Removed> pRemoved = GetRemoved();
        m_byId.clear();
        Unsubscribe(*pItem);
        pRemoved->splice(pRemoved->end(), m_owned, m_owners[static_cast<std::size_t>(index)]);
        m_owners.erase(m_owners.begin() + index);
        m_items.erase(m_items.begin() + index);
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
        for (const OwnerPtr<TItem>& opItem : m_owned)
            Unsubscribe(*opItem);
        pRemoved->splice(pRemoved->end(), m_owned);
        m_owners.clear();
        m_items.clear();
        m_event.RaiseItemsChanged(ControlDefinitionChangeEventType::Clear, -1, std::wstring(),
                                  nullptr, pRemoved);
    }

private:
    using Removed = std::list<OwnerPtr<TItem>>;
    using Owner = typename Removed::iterator;

    /// The removed items that handlers may still be notified of; freed when the last call that
    /// holds them returns.
    std::shared_ptr<Removed> GetRemoved()
    {
        std::shared_ptr<Removed> pRemoved = m_pRemoved.lock();
        if (pRemoved == nullptr)
            m_pRemoved = pRemoved = std::make_shared<Removed>();
        return pRemoved;
    }

    void Unsubscribe(TItem& item)
    {
        if (IControlDefinitionChangeEvent* pItemEvent = FindEvent(item))
            pItemEvent->Delete(this);
    }

    static IControlDefinitionChangeEvent* FindEvent(TItem& item)
    {
        const auto* pSource = dynamic_cast<const IControlDefinitionChangeEventSource*>(&item);
        return pSource != nullptr ? pSource->GetControlDefinitionChangeEvent() : nullptr;
    }

    void On(IControlDefinitionChangeEventArgs*) override { m_event.RaisePropertyChanged(); }

    ControlDefinitionChangeEvent& m_event;

    std::list<OwnerPtr<TItem>> m_owned;

    // The order is kept apart from the owners, because shifting what is plain in a long list is
    // cheap.
    std::vector<const TShown*> m_items;
    std::vector<Owner> m_owners; ///< Of the items, in the same order.

    /// The first item with each id, since the list was searched last; empty when it has changed.
    mutable std::unordered_map<std::wstring, TItem*> m_byId;
    std::weak_ptr<Removed> m_pRemoved;
};

}
