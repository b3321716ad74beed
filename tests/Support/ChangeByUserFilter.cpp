#include "Support/ChangeByUserFilter.h"

namespace vesk::test
{

ChangeByUserFilter::ChangeByUserFilter(IControlDefinitionChangeEvent* pSource) : m_pSource(pSource)
{
    m_pSource->Add(this);
}

ChangeByUserFilter::~ChangeByUserFilter()
{
    m_pSource->Delete(this);
}

void ChangeByUserFilter::On(IControlDefinitionChangeEventArgs* pArgs)
{
    if (!pArgs->IsChangeByUser())
        Emit(pArgs);
}

}
