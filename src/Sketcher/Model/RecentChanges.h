#pragma once

#include "Model/SketchChange.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <utility>
#include <vector>

/// Which entities the last changes of a drawing concerned, so that whoever shows them need not look
/// for what is different. Remembers only so much that looking would take longer.
class RecentChanges final
{
public:
    /// The number of the last change; no two drawings that differ in an entity have the same.
    std::uint64_t GetVersion() const { return m_version; }

    void Add(const SketchChange& change);

    /// Any entity may have changed.
    void Forget();

    /// The ascending ids of the entities that were added, changed or removed after a version; with
    /// nothing returned it may be any.
    std::optional<std::vector<int>> GetSince(std::uint64_t version) const;

private:
    std::uint64_t m_version = 0;
    std::uint64_t m_forgotten = 0;                   ///< The last version that is not remembered.
    std::deque<std::pair<std::uint64_t, int>> m_ids; ///< Which version concerned which entities.
};
