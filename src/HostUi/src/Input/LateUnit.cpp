#include "Input/LateUnit.h"

#include "Formulas/FormulaUnits.h"

#include <utility>

namespace vesk
{

void LateUnit::Begin()
{
    m_isAwaited = true;
    m_text.clear();
    m_kept.clear();
}

bool LateUnit::CanTake(const QKeyEvent& event) const
{
    const Qt::KeyboardModifiers others =
        Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier | Qt::KeypadModifier;
    return m_isAwaited && !(event.modifiers() & others) && event.text().size() == 1 &&
           BeginsUnit(m_text + event.text());
}

bool LateUnit::Take(const QKeyEvent& event)
{
    m_text += event.text();
    if (IsUnit(m_text))
    {
        m_kept.clear();
        return true;
    }
    m_kept.emplace_back(event);
    return false;
}

std::vector<KeptKey> LateUnit::End()
{
    m_isAwaited = false;
    m_text.clear();
    return std::exchange(m_kept, {});
}

}
