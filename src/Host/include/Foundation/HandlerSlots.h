#pragma once

#include "Foundation/HostExport.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vesk
{

/// The handlers of an event in the order of subscription, each in a slot. A removed handler leaves
/// an empty slot, so that the others keep theirs until `DropEmpty`.
///
/// Adding and removing take constant time, however many there are and in whatever order they leave.
/// Handlers are not owned, and only their addresses are used.
class VESK_HOST_API HandlerSlots
{
public:
    /// The number of slots, including empty ones.
    std::size_t GetCount() const { return m_handlers.size(); }

    /// Null if the slot is empty.
    void* Get(std::size_t slot) const { return m_handlers[slot]; }

    /// True when there is no handler.
    bool IsEmpty() const { return m_emptyCount == m_handlers.size(); }

    /// Puts a handler into a new slot; null and a handler that has a slot are ignored.
    void Add(void* pHandler);

    /// Clears the slot of a handler; an unknown one is ignored. Allocates nothing.
    void Remove(void* pHandler);

    /// Drops the empty slots if they are more than half: then the handlers change their slots, in
    /// the same order. Allocates nothing.
    void DropEmpty()
    {
        if (2 * m_emptyCount > m_handlers.size())
            Close();
    }

private:
    std::size_t Find(const void* pHandler) const;
    std::size_t FirstCell(const void* pHandler) const;
    void Enter(std::size_t slot);
    void MakeTable(std::size_t count);
    void Close();

    std::vector<void*> m_handlers;
    std::size_t m_emptyCount = 0;

    /// A hash table of slots, for more than a few handlers; its size is a power of two. A cell that
    /// refers to an empty slot matches no handler: so removing leaves the table as it is.
    std::vector<std::uint32_t> m_table;
};

}
