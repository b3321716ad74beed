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
    using Execution = std::function<OwnerPtr<IAction>(IUiView*, const CommandParameters&)>;
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
    bool IsEnabled() const override;
    bool IsVisible() const override;
    bool IsInteractive() const override;
    OwnerPtr<IAction> Execute(IUiView* pView, const CommandParameters& parameters) override;

    /// Sets whether the journal record holds the id alone.
    void SetJournalIdOnly(bool isIdOnly);
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
