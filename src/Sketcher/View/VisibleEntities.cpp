#include "View/VisibleEntities.h"

#include "Model/Selection.h"
#include "Model/Sketch.h"

#include <algorithm>
#include <cstddef>

namespace
{

bool IsBefore(const Entity& entity, int id)
{
    return entity.id < id;
}

bool AreEqual(const Area& a, const Area& b)
{
    return a.low == b.low && a.high == b.high;
}

}

VisibleEntities::VisibleEntities(const Sketch& sketch, const Selection& selection)
    : m_sketch(sketch), m_selection(selection)
{}

std::vector<const Entity*>::const_iterator VisibleEntities::From(int id, const Area& area)
{
    if (!IsFound(id, area))
        Find(id, area);
    return std::lower_bound(
        m_entities.begin(), m_entities.end(), id,
        [](const Entity* pEntity, int sought) { return IsBefore(*pEntity, sought); });
}

const std::vector<const Entity*>& VisibleEntities::GetSelected(const Area& area)
{
    From(0, area);
    if (m_selected.has_value())
        return *m_selected;
    m_selected.emplace();
    for (const int id : m_selection.GetIds())
    {
        const auto found = From(id, area);
        if (found != End() && (*found)->id == id)
            m_selected->push_back(*found);
    }
    return *m_selected;
}

bool VisibleEntities::IsFound(int id, const Area& area) const
{
    return m_area.has_value() && AreEqual(*m_area, area) && m_first <= id;
}

/// Where the drawing grows, its few last entities are found sooner without the index, which a large
/// addition makes it build again.
void VisibleEntities::Find(int id, const Area& area)
{
    constexpr std::ptrdiff_t FewShare = 4;
    const std::vector<Entity>& entities = m_sketch.GetEntities();
    const auto first = std::lower_bound(entities.begin(), entities.end(), id, IsBefore);
    const bool areFew = entities.end() - first <= (entities.end() - entities.begin()) / FewShare;
    m_area = area;
    m_first = areFew ? id : 0;
    m_selected.reset();
    if (!areFew)
    {
        m_entities = m_sketch.FindIn(area);
        return;
    }
    m_entities.clear();
    for (auto entity = first; entity != entities.end(); ++entity)
        m_entities.push_back(&*entity);
}
