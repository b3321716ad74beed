#include "Foundation/EmissionScope.h"

namespace vesk
{

EmissionScope::EmissionScope(EmissionScope*& pInnermost)
    : m_ppInnermost(&pInnermost), m_pOuter(pInnermost)
{
    pInnermost = this;
}

void EmissionScope::EndAll(EmissionScope* pInnermost)
{
    for (EmissionScope* pScope = pInnermost; pScope != nullptr; pScope = pScope->m_pOuter)
        pScope->m_ppInnermost = nullptr;
}

}
