#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

#include <string>

namespace vesk
{

class CommandParameters;
class IAction;
class IUiView;

/// Something the user can start, registered under an id.
class VESK_HOST_API ICommand
{
public:
    virtual ~ICommand() = default;

    /// The id under which it is registered; never changes.
    virtual std::wstring GetCommandId() const = 0;

    /// True when its journal record holds the id alone, false when it holds the parameters too.
    virtual bool IsJournalIdOnly() const = 0;

    /// Whether it can be started now. Buttons are enabled accordingly; it is asked again just
    /// before the command runs.
    virtual bool IsEnabled() const = 0;

    /// Whether its buttons are shown.
    virtual bool IsVisible() const = 0;

    /// True when it runs as an action that goes on until the user ends it.
    virtual bool IsInteractive() const = 0;

    /// Executes the command. An interactive command returns its action, which the action manager
    /// runs; any other returns an empty pointer when its work is done.
    virtual OwnerPtr<IAction> Execute(IUiView* pView, const CommandParameters& parameters) = 0;
};

}
