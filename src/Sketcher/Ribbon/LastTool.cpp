#include "Ribbon/LastTool.h"

#include "Journal/CommandParameters.h"

using vesk::ActionManager;

LastTool::LastTool()
{
    ActionManager::AddObserver(this);
}

LastTool::~LastTool()
{
    ActionManager::RemoveObserver(this);
}

void LastTool::Repeat() const
{
    if (!m_commandId.empty() && ActionManager::GetRunningCommandId().empty())
        ActionManager::RunCommand(m_commandId, {});
}

void LastTool::OnActionChanged()
{
    const std::wstring running = ActionManager::GetRunningCommandId();
    if (!running.empty())
        m_commandId = running;
}
