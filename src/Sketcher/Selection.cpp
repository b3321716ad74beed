#include "Selection.h"

#include "Sketch.h"

#include "Journal/JournalManager.h"

#include <algorithm>

using namespace vesk;

Selection::Selection(const Sketch& sketch) : m_sketch(sketch)
{
    connect(&sketch, &Sketch::changed, this, &Selection::OnSketchChanged);
}

bool Selection::Contains(int id) const
{
    return std::find(m_ids.begin(), m_ids.end(), id) != m_ids.end();
}

bool Selection::Select(const std::vector<int>& ids)
{
    const bool isKnown = std::all_of(ids.begin(), ids.end(),
                                     [this](int id) { return m_sketch.Find(id) != nullptr; });
    if (!isKnown || ids == m_ids)
        return isKnown;
    JournalManager::GetInstance().Add(SelectionRecord{ids});
    m_ids = ids;
    emit changed();
    return true;
}

void Selection::OnSketchChanged()
{
    const auto gone = std::remove_if(m_ids.begin(), m_ids.end(),
                                     [this](int id) { return m_sketch.Find(id) == nullptr; });
    if (gone == m_ids.end())
        return;
    m_ids.erase(gone, m_ids.end());
    emit changed();
}
