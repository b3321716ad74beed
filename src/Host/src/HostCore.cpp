#include "HostCore.h"

#include "Command/ActionManager.h"
#include "Command/ICommand.h"
#include "Command/ICommandManager.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Journal/JournalFactory.h"
#include "Journal/JournalManager.h"
#include "Warnings/DebugMessageMgr.h"

namespace vesk
{

HostCore::HostCore() : m_pJournalFactory(std::make_unique<JournalFactory>())
{
    NqIJournalFactory::SetImpl(m_pJournalFactory.get());
}

HostCore::~HostCore()
{
    ActionManager::Reset();
    TemporaryDimensionMgr::GetInstance()->Drop();
    ICommandManager::Get()->RemoveAllCommands();
    JournalManager::GetInstance().Close();
    DebugMessageMgr::GetDebugMessageMgr()->Reset();
    if (NqIJournalFactory::GetImpl() == m_pJournalFactory.get())
        NqIJournalFactory::SetImpl(nullptr);
}

}
