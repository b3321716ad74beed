#include "Journal/NqIJournalFactory.h"

#include "Journal/IJournalData.h"
#include "Journal/IJournalUiObject.h"

namespace vesk
{

namespace
{

NqIJournalFactory* s_pFactory = nullptr;

}

NqIJournalFactory* NqIJournalFactory::GetImpl()
{
    return s_pFactory;
}

void NqIJournalFactory::SetImpl(NqIJournalFactory* pFactory)
{
    s_pFactory = pFactory;
}

}
