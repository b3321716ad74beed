#include "Control/ControlDefinitionChangeByUser.h"

namespace vesk
{

namespace
{

const ControlDefinitionChangeByUser* s_pInnermost = nullptr;

}

bool LineEditTextChangeFlag::m_textChangeByUser = false;
bool RadioButtonGroupStateChangeFlag::m_stateChangeByUser = false;

ControlDefinitionChangeByUser::ControlDefinitionChangeByUser(const std::wstring& id)
    : m_id(id), m_pOuter(s_pInnermost)
{
    s_pInnermost = this;
}

ControlDefinitionChangeByUser::~ControlDefinitionChangeByUser()
{
    s_pInnermost = m_pOuter;
}

bool ControlDefinitionChangeByUser::IsChangeByUser(const std::wstring& id)
{
    const ControlDefinitionChangeByUser* pScope = s_pInnermost;
    while (pScope != nullptr && pScope->m_id != id)
        pScope = pScope->m_pOuter;
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
