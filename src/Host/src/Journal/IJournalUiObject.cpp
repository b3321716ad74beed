#include "Journal/IJournalUiObject.h"

#include "Journal/NqIJournalFactory.h"

namespace vesk
{

OwnerPtr<IJournalUiObject> IJournalUiObject::Create()
{
    NqIJournalFactory* pFactory = NqIJournalFactory::GetImpl();
    return pFactory != nullptr ? pFactory->CreateJournalUiObject() : nullptr;
}

}
