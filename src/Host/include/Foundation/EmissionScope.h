#pragma once

#include "Foundation/HostExport.h"

#include <cstddef>

namespace vesk
{

/// One emission of an event, linked with the enclosing ones. Lives on the stack of the emitting
/// call and is unlinked however that call ends; the event may be destroyed first.
class VESK_HOST_API EmissionScope
{
public:
    /// No slot: no handler is being called.
    static constexpr std::size_t NoPlace = static_cast<std::size_t>(-1);

    /// `pInnermost` belongs to the event; it points to this scope until the scope ends.
    explicit EmissionScope(EmissionScope*& pInnermost);
    ~EmissionScope()
    {
        if (IsEventAlive())
            *m_ppInnermost = m_pOuter;
    }
    EmissionScope(const EmissionScope&) = delete;
    EmissionScope& operator=(const EmissionScope&) = delete;

    /// Tells all emissions of an event that the event is being destroyed.
    static void EndAll(EmissionScope* pInnermost);

    /// False once the event was destroyed by one of its handlers.
    bool IsEventAlive() const { return m_ppInnermost != nullptr; }

    /// True unless the event is being emitted by a handler of itself.
    bool IsOutermost() const { return m_pOuter == nullptr; }

    /// The slot of the handler that is being called.
    std::size_t GetPlace() const { return m_place; }

    /// Sets the slot of the handler that is called next.
    void SetPlace(std::size_t place) { m_place = place; }

private:
    EmissionScope** m_ppInnermost;
    EmissionScope* m_pOuter;
    std::size_t m_place = NoPlace;
};

}
