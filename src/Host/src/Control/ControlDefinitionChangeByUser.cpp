#include "Control/ControlDefinitionChangeByUser.h"

namespace vesk
{

namespace
{

ControlDefinitionChangeByUser* s_pYoungest = nullptr;

}

bool LineEditTextChangeFlag::m_textChangeByUser = false;
bool RadioButtonGroupStateChangeFlag::m_stateChangeByUser = false;

ControlDefinitionChangeByUser::ControlDefinitionChangeByUser(const std::wstring& id)
    : m_id(id), m_pOlder(s_pYoungest)
{
    if (m_pOlder != nullptr)
        m_pOlder->m_pYounger = this;
    s_pYoungest = this;
}

ControlDefinitionChangeByUser::~ControlDefinitionChangeByUser()
{
    if (m_pOlder != nullptr)
        m_pOlder->m_pYounger = m_pYounger;
    (m_pYounger != nullptr ? m_pYounger->m_pOlder : s_pYoungest) = m_pOlder;
}

bool ControlDefinitionChangeByUser::IsChangeByUser(const std::wstring& id)
{
    const ControlDefinitionChangeByUser* pScope = s_pYoungest;
    while (pScope != nullptr && pScope->m_id != id)
        pScope = pScope->m_pOlder;
    return pScope != nullptr;
}

LineEditTextChangeFlag::~LineEditTextChangeFlag()
{
    m_textChangeByUser = false;
}

RadioButtonGroupStateChangeFlag::~RadioButtonGroupStateChangeFlag()
{
    m_stateChangeByUser = false;
}

}
