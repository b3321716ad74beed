#include "Command/Command.h"

#include "Command/IAction.h"
#include "Journal/CommandParameters.h"

#include <utility>

namespace vesk
{

Command::Command(std::wstring id, Kind kind, Execution execute, Condition isEnabled)
    : m_id(std::move(id)), m_kind(kind), m_execute(std::move(execute)),
      m_isEnabled(std::move(isEnabled))
{}

std::wstring Command::GetCommandId() const
{
    return m_id;
}

bool Command::IsJournalIdOnly() const
{
    return m_isJournalIdOnly;
}

bool Command::IsEnabled() const
{
    return !m_isEnabled || m_isEnabled();
}

bool Command::IsVisible() const
{
    return m_isVisible;
}

bool Command::IsInteractive() const
{
    return m_kind == Kind::Interactive;
}

OwnerPtr<IAction> Command::Execute(IUiView* pView, const CommandParameters& parameters)
{
    return m_execute ? m_execute(pView, parameters) : nullptr;
}

void Command::SetJournalIdOnly(bool isIdOnly)
{
    m_isJournalIdOnly = isIdOnly;
}

void Command::SetVisible(bool isVisible)
{
    m_isVisible = isVisible;
}

}
