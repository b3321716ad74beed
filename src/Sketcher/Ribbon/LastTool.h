#pragma once

#include "Command/ActionManager.h"

#include <string>

/// Remembers the last command that began an action, so that it can be run again.
class LastTool final : public vesk::IActionObserver
{
public:
    LastTool();
    ~LastTool() override;
    LastTool(const LastTool&) = delete;
    LastTool& operator=(const LastTool&) = delete;

    /// The command's id; empty if there was none yet.
    const std::wstring& GetCommandId() const { return m_commandId; }

    /// Runs it again, as a command of its own in the journal. Does nothing while an action is
    /// running, or if there was none yet.
    void Repeat() const;

    void OnActionChanged() override;

private:
    std::wstring m_commandId;
};
