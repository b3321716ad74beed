#include "Command/ICommandManager.h"

#include "Command/ICommand.h"

#include <string>
#include <unordered_map>
#include <utility>

namespace vesk
{

namespace
{

class CommandManager final : public ICommandManager
{
public:
    ICommand* GetCommand(const std::wstring& commandId) const override
    {
        const auto found = m_commands.find(commandId);
        return found != m_commands.end() ? found->second.Get() : nullptr;
    }

    bool AddCommand(OwnerPtr<ICommand> opCommand) override
    {
        if (opCommand == nullptr)
            return false;
        const std::wstring commandId = opCommand->GetCommandId();
        return m_commands.try_emplace(commandId, std::move(opCommand)).second;
    }

    void RemoveCommand(const std::wstring& commandId) override { m_commands.erase(commandId); }
    void RemoveAllCommands() override { m_commands.clear(); }

private:
    std::unordered_map<std::wstring, OwnerPtr<ICommand>> m_commands;
};

}

ICommandManager* ICommandManager::Get()
{
    // Never destroyed: libraries that are unloaded at process exit still use it.
    static CommandManager* const s_pManager = new CommandManager;
    return s_pManager;
}

}
