#pragma once

#include "Command/ICommand.h"
#include "Foundation/HostExport.h"

#include <functional>
#include <string>

namespace vesk
{

/// A command built from functions, for command tables.
class VESK_HOST_API Command final : public ICommand
{
public:
    /// Does the work in a view, which is null if there is none; returns what ICommand::Execute
    /// returns.
    using Execution = std::function<OwnerPtr<IAction>(IUiView*, const CommandParameters&)>;

    /// Says whether the command can be started now; called often, so it must be quick.
    using Condition = std::function<bool()>;

    /// Whether it runs as an action.
    enum class Kind
    {
        Plain,
        Interactive,
    };

    /// Without a condition the command is always enabled. Its parameters are journaled.
    Command(std::wstring id, Kind kind, Execution execute, Condition isEnabled = {});

    std::wstring GetCommandId() const override;
    bool IsJournalIdOnly() const override;

    /// What the condition says now.
    bool IsEnabled() const override;
    bool IsVisible() const override;
    bool IsInteractive() const override;
    OwnerPtr<IAction> Execute(IUiView* pView, const CommandParameters& parameters) override;

    /// Sets whether the journal record holds the id alone.
    void SetJournalIdOnly(bool isIdOnly);

    /// Sets whether the buttons of the command are shown; initially true.
    void SetVisible(bool isVisible);

private:
    std::wstring m_id;
    Kind m_kind;
    Execution m_execute;
    Condition m_isEnabled;
    bool m_isJournalIdOnly = false;
    bool m_isVisible = true;
};

}
