#pragma once

#include "Foundation/EmissionScope.h"
#include "Foundation/FirstException.h"
#include "Foundation/HandlerSlots.h"

#include <cstddef>

namespace vesk
{

/// A list of handlers to which arguments are delivered; the concrete event behind an event
/// interface.
///
/// `TSender` is the class whose event it is, `TEvent` the interface with `Add` and `Delete`;
/// `THandler` has `On(TArgs*)`. Handlers are not owned.
///
/// Emitting survives re-entry: a handler may subscribe, unsubscribe itself or another, emit again,
/// or destroy the event itself. A handler added while emitting is called from the next emission on;
/// a removed one is not called again. A handler that throws does not keep the others from being
/// called: the first exception is rethrown when all have been called. Emitting allocates nothing.
template <class TSender, class TEvent, class THandler, class TArgs>
class Event : public TEvent
{
public:
    /// The class whose event it is.
    using Sender = TSender;

    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    ~Event() override { EmissionScope::EndAll(m_pInnermost); }

    /// Subscribes a handler; null and a handler that is already subscribed are ignored.
    void Add(THandler* pHandler) override { m_slots.Add(pHandler); }

    /// Unsubscribes a handler; an unknown one is ignored.
    void Delete(THandler* pHandler) override
    {
        m_slots.Remove(pHandler);
        // Slots must not move while emitting: those that are empty are dropped afterwards.
        if (m_pInnermost == nullptr)
            m_slots.DropEmpty();
    }

    /// Calls `On(pArgs)` of each handler in the order of subscription. `pArgs` is not owned.
    void Emit(TArgs* pArgs) { EmitTo(m_slots.GetCount(), pArgs); }

    /// True when there are no handlers.
    bool IsEmpty() const { return m_slots.IsEmpty(); }

protected:
    /// While one exists, no handler changes its slot.
    class Emission final : public EmissionScope
    {
    public:
        /// Begins an emission of an event.
        explicit Emission(Event& event) : EmissionScope(event.m_pInnermost), m_event(event) {}

        ~Emission()
        {
            if (IsEventAlive() && IsOutermost())
                m_event.m_slots.DropEmpty();
        }

    private:
        Event& m_event;
    };

    /// The number of handler slots: handlers that subscribe from now on come after them.
    std::size_t GetPlaceCount() const { return m_slots.GetCount(); }

    /// Calls the handlers in the first `placeCount` slots.
    void EmitTo(std::size_t placeCount, TArgs* pArgs)
    {
        Emission emission(*this);
        FirstException exception;
        for (std::size_t place = 0; emission.IsEventAlive() && place < placeCount; ++place)
        {
            emission.SetPlace(place);
            if (THandler* pHandler = GetHandler(place))
                exception.Catch([&] { pHandler->On(pArgs); });
        }
        exception.Throw();
    }

    /// The handler that the innermost emission is calling; null if there is none.
    THandler* GetCalledHandler() const
    {
        const std::size_t place =
            m_pInnermost != nullptr ? m_pInnermost->GetPlace() : EmissionScope::NoPlace;
        return place < m_slots.GetCount() ? GetHandler(place) : nullptr;
    }

private:
    THandler* GetHandler(std::size_t place) const
    {
        return static_cast<THandler*>(m_slots.Get(place));
    }

    HandlerSlots m_slots;
    EmissionScope* m_pInnermost = nullptr;
};

}
