#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace vesk
{

/// A list of handlers to which arguments are delivered; the concrete event behind an event
/// interface.
///
/// `TSender` tells whose event it is, `TEvent` is the interface with `Add` and `Delete`, `THandler`
/// has `On(TArgs*)`. Handlers are not owned.
///
/// Emitting survives re-entry: a handler may subscribe, unsubscribe itself or another, emit again,
/// or destroy the event itself. A handler added while emitting first hears the next emission; one
/// removed hears nothing more. Emitting allocates nothing.
template <class TSender, class TEvent, class THandler, class TArgs>
class Event : public TEvent
{
public:
    using Sender = TSender;

    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    ~Event() override
    {
        for (Emission* pEmission = m_pInnermost; pEmission != nullptr;
             pEmission = pEmission->pOuter)
            pEmission->isEventAlive = false;
    }

    /// Subscribes a handler; null and a handler that is already subscribed are ignored.
    void Add(THandler* pHandler) override
    {
        if (pHandler == nullptr || Contains(pHandler))
            return;
        m_handlers.push_back(pHandler);
    }

    /// Unsubscribes a handler; an unknown one is ignored.
    void Delete(THandler* pHandler) override
    {
        const auto found = std::find(m_handlers.begin(), m_handlers.end(), pHandler);
        if (pHandler == nullptr || found == m_handlers.end())
            return;
        // While emitting the places must not move: the entry is emptied and dropped afterwards.
        if (m_pInnermost != nullptr)
            *found = nullptr;
        else
            m_handlers.erase(found);
    }

    /// Calls `On(pArgs)` of each handler in the order of subscription. `pArgs` is not owned.
    void Emit(TArgs* pArgs)
    {
        Emission emission{m_pInnermost};
        m_pInnermost = &emission;
        const std::size_t count = m_handlers.size();
        for (std::size_t i = 0; i < count; ++i)
        {
            if (THandler* pHandler = m_handlers[i])
                pHandler->On(pArgs);
            if (!emission.isEventAlive)
                return;
        }
        m_pInnermost = emission.pOuter;
        if (m_pInnermost == nullptr)
            m_handlers.erase(std::remove(m_handlers.begin(), m_handlers.end(), nullptr),
                             m_handlers.end());
    }

    /// True when nobody listens.
    bool IsEmpty() const
    {
        return std::all_of(m_handlers.begin(), m_handlers.end(),
                           [](const THandler* pHandler) { return pHandler == nullptr; });
    }

private:
    /// One running `Emit`; lives on the stack of that call.
    struct Emission
    {
        Emission* pOuter;
        bool isEventAlive = true;
    };

    bool Contains(const THandler* pHandler) const
    {
        return std::find(m_handlers.begin(), m_handlers.end(), pHandler) != m_handlers.end();
    }

    std::vector<THandler*> m_handlers;
    Emission* m_pInnermost = nullptr;
};

}
