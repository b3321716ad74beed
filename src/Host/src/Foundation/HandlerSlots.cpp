#include "Foundation/HandlerSlots.h"

#include <algorithm>

namespace vesk
{

namespace
{

constexpr std::size_t NoSlot = static_cast<std::size_t>(-1);
constexpr std::uint32_t NoCell = static_cast<std::uint32_t>(-1);

/// So many handlers are found faster by looking at each.
constexpr std::size_t Few = 16;

/// At most a quarter of the cells of a new table are used, and half of them before the next one.
std::size_t CellsFor(std::size_t count)
{
    std::size_t cells = 4 * Few;
    while (cells < 4 * count)
        cells *= 2;
    return cells;
}

}

void HandlerSlots::Add(void* pHandler)
{
    if (pHandler == nullptr || Find(pHandler) != NoSlot)
        return;
    const std::size_t count = m_handlers.size() + 1;
    if (count > Few && m_table.size() < 2 * count)
        MakeTable(count);
    m_handlers.push_back(pHandler);
    if (!m_table.empty())
        Enter(count - 1);
}

void HandlerSlots::Remove(void* pHandler)
{
    const std::size_t slot = pHandler != nullptr ? Find(pHandler) : NoSlot;
    if (slot == NoSlot)
        return;
    m_handlers[slot] = nullptr;
    ++m_emptyCount;
}

std::size_t HandlerSlots::Find(const void* pHandler) const
{
    if (m_table.empty())
    {
        const auto found = std::find(m_handlers.begin(), m_handlers.end(), pHandler);
        return found != m_handlers.end() ? static_cast<std::size_t>(found - m_handlers.begin())
                                         : NoSlot;
    }
    const std::size_t last = m_table.size() - 1;
    for (std::size_t cell = FirstCell(pHandler); m_table[cell] != NoCell; cell = (cell + 1) & last)
    {
        if (m_handlers[m_table[cell]] == pHandler)
            return m_table[cell];
    }
    return NoSlot;
}

/// The cell at which the search for a handler begins. Addresses differ mostly in their middle bits,
/// which the multiplication spreads over the upper half.
std::size_t HandlerSlots::FirstCell(const void* pHandler) const
{
    const std::uint64_t address = reinterpret_cast<std::uintptr_t>(pHandler);
    const std::uint64_t spread = address * 0x9e3779b97f4a7c15u;
    return static_cast<std::size_t>(spread >> 32) & (m_table.size() - 1);
}

/// Puts the slot of a handler into the table, which has free cells.
void HandlerSlots::Enter(std::size_t slot)
{
    const std::size_t last = m_table.size() - 1;
    std::size_t cell = FirstCell(m_handlers[slot]);
    while (m_table[cell] != NoCell)
        cell = (cell + 1) & last;
    m_table[cell] = static_cast<std::uint32_t>(slot);
}

/// Makes a table with room for `count` slots and enters the handlers that there are.
void HandlerSlots::MakeTable(std::size_t count)
{
    m_table.assign(CellsFor(count), NoCell);
    for (std::size_t slot = 0; slot < m_handlers.size(); ++slot)
    {
        if (m_handlers[slot] != nullptr)
            Enter(slot);
    }
}

void HandlerSlots::Close()
{
    m_handlers.erase(std::remove(m_handlers.begin(), m_handlers.end(), nullptr), m_handlers.end());
    m_emptyCount = 0;
    // There are fewer handlers now, so the table is not larger than before.
    if (m_handlers.size() > Few)
        MakeTable(m_handlers.size());
    else
        m_table.clear();
}

}
