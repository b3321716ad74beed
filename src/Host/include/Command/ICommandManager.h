#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

#include <string>

namespace vesk
{

class ICommand;

/// The registered commands.
class VESK_HOST_API ICommandManager
{
public:
    /// The manager; it lives as long as the process.
    static ICommandManager* Get();

    virtual ~ICommandManager() = default;

    /// The command registered under that id, null if there is none. Not owned.
    virtual ICommand* GetCommand(const std::wstring& commandId) const = 0;

    /// Registers a command; if its id is already in use, frees the new command and returns false.
    virtual bool AddCommand(OwnerPtr<ICommand> opCommand) = 0;

    /// Frees the command with that id. Must not be called while the command runs.
    virtual void RemoveCommand(const std::wstring& commandId) = 0;

    /// Frees all commands. Must not be called while one runs.
    virtual void RemoveAllCommands() = 0;
};

}
