#include "Model/RecentChanges.h"

#include <algorithm>
#include <cstddef>

void RecentChanges::Add(const SketchChange& change)
{
    constexpr std::size_t MostRemembered = 100;
    if (change.entities.size() > MostRemembered)
    {
        Forget();
        return;
    }
    ++m_version;
    for (const auto& entity : change.entities)
        m_ids.emplace_back(m_version, entity.first);
    while (m_ids.size() > MostRemembered)
    {
        m_forgotten = m_ids.front().first;
        m_ids.pop_front();
    }
}

void RecentChanges::Forget()
{
    m_forgotten = ++m_version;
    m_ids.clear();
}

std::optional<std::vector<int>> RecentChanges::GetSince(std::uint64_t version) const
{
    if (version < m_forgotten)
        return std::nullopt;
    std::vector<int> ids;
    for (const auto& [changed, id] : m_ids)
    {
        if (changed > version)
            ids.push_back(id);
    }
    std::sort(ids.begin(), ids.end());
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    return ids;
}
