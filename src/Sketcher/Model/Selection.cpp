#include "Model/Selection.h"

#include "Model/Sketch.h"

#include "Journal/JournalManager.h"

#include <algorithm>
#include <iterator>
#include <utility>

using namespace vesk;

Selection::Selection(const Sketch& sketch) : m_sketch(sketch)
{
    connect(&sketch, &Sketch::changed, this, &Selection::OnSketchChanged);
}

bool Selection::Contains(int id) const
{
    return std::binary_search(m_ascending.begin(), m_ascending.end(), id);
}

bool Selection::Select(const std::vector<int>& ids)
{
    const bool isKnown =
        std::all_of(ids.begin(), ids.end(), [this](int id) { return m_sketch.CanPick(id); });
    if (!isKnown || ids == m_ids)
        return isKnown;
    JournalManager::GetInstance().Add(SelectionRecord{ids});
    Set(ids);
    return true;
}

void Selection::OnSketchChanged()
{
    std::vector<int> standing;
    std::copy_if(m_ids.begin(), m_ids.end(), std::back_inserter(standing),
                 [this](int id) { return m_sketch.CanPick(id); });
    if (standing.size() != m_ids.size())
        Set(std::move(standing));
}

void Selection::Set(std::vector<int> ids)
{
    m_ids = std::move(ids);
    m_ascending = m_ids;
    // Mostly they are in order, which is found out much sooner.
    if (!std::is_sorted(m_ascending.begin(), m_ascending.end()))
        std::sort(m_ascending.begin(), m_ascending.end());
    emit changed();
}
