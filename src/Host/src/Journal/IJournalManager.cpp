#include "Journal/IJournalManager.h"

#include "Journal/JournalManager.h"

namespace vesk
{

IJournalManager* IJournalManager::Get()
{
    return &JournalManager::GetInstance();
}

}
