#include "Journal/NqIJournalFactory.h"

#include "Journal/IJournalData.h"
#include "Journal/IJournalUiObject.h"

namespace vesk
{

namespace
{

NqIJournalFactory* s_pJournalFactory = nullptr;

}

NqIJournalFactory* NqIJournalFactory::GetImpl()
{
    return s_pJournalFactory;
}

void NqIJournalFactory::SetImpl(NqIJournalFactory* pFactory)
{
    s_pJournalFactory = pFactory;
}

}
