#include "Replay/JournalReplayer.h"

#include "Command/ActionManager.h"
#include "Command/ActionRunner.h"
#include "Command/ICommand.h"
#include "Command/ICommandManager.h"
#include "Foundation/FirstException.h"
#include "Foundation/ScopedValue.h"
#include "Foundation/Text.h"
#include "Journal/JournalManager.h"
#include "View/IUiDocumentViewManager.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <map>

namespace vesk
{

namespace
{

bool s_isReplaying = false;

/// Disables the event loop of actions while it exists.
class EventLoopOffScope
{
public:
    EventLoopOffScope() : m_pEventLoop(ActionRunner::GetInstance().SetEventLoop(nullptr)) {}
    ~EventLoopOffScope() { ActionRunner::GetInstance().SetEventLoop(m_pEventLoop); }
    EventLoopOffScope(const EventLoopOffScope&) = delete;
    EventLoopOffScope& operator=(const EventLoopOffScope&) = delete;

private:
    IActionEventLoop* m_pEventLoop;
};

/// Marks have no time while it exists.
class TimesOffScope
{
public:
    TimesOffScope() : m_wasTimed(JournalManager::GetInstance().SetTimed(false)) {}
    ~TimesOffScope() { JournalManager::GetInstance().SetTimed(m_wasTimed); }
    TimesOffScope(const TimesOffScope&) = delete;
    TimesOffScope& operator=(const TimesOffScope&) = delete;

private:
    bool m_wasTimed;
};

/// Where each command ends in a journal.
class EndMarks
{
public:
    explicit EndMarks(const std::vector<JournalRecord>& records)
    {
        for (std::size_t i = 0; i < records.size(); ++i)
        {
            if (const auto* pEnd = std::get_if<EndRecord>(&records[i].what))
                m_marks[pEnd->command] = {i, pEnd->isRefused};
        }
    }

    bool Has(int command) const { return m_marks.count(command) != 0; }
    bool IsRefused(int command) const { return Has(command) && m_marks.at(command).isRefused; }

    /// True if the first ends before the second, or the second never ends.
    bool IsBefore(int first, int second) const
    {
        if (!Has(second))
            return true;
        return Has(first) && m_marks.at(first).index < m_marks.at(second).index;
    }

    /// True if the command's mark comes after that index.
    bool IsAfter(int command, std::size_t index) const
    {
        return Has(command) && m_marks.at(command).index > index;
    }

private:
    struct Mark
    {
        std::size_t index;
        bool isRefused;
    };

    std::map<int, Mark> m_marks;
};

/// One replay. Each operation returns why its record cannot be replayed; empty on success.
class Replay
{
public:
    Replay(const std::vector<JournalRecord>& records, IJournalReplayTarget& target)
        : m_records(records), m_target(target), m_marks(records)
    {}

    JournalReplayResult Run();

    std::string operator()(const CommandRecord& record);
    std::string operator()(const PointRecord& record);
    std::string operator()(const ValueRecord& record);
    std::string operator()(const SelectionRecord& record);
    std::string operator()(const PropertyRecord& record);
    std::string operator()(const UndoRecord& record);
    std::string operator()(const EndRecord& record);
    std::string operator()(const RedoRecord& record);
    std::string operator()(const MarkRecord& record);
    std::string operator()(const HeaderRecord&) { return {}; }
    std::string operator()(const CloseRecord&) { return {}; }

private:
    struct Pending
    {
        int number;
        std::size_t index;
        CommandRecord record;
    };

    std::string RunRecord();
    std::string RunPending();
    std::string RunCommand(const Pending& command);
    bool MustWait(const Pending& command) const;
    bool IsBeside(const Pending& command) const;
    bool IsWorthRunning(const Pending& command) const;
    std::string FailAt(int number, const std::string& failure);
    std::vector<EndRecord> FindMissingMarks() const;
    bool IsFollowedByCommandsOnly(std::size_t index) const;
    std::string TellUndone(const std::string& what, int expected) const;

    const std::vector<JournalRecord>& m_records;
    IJournalReplayTarget& m_target;
    const EndMarks m_marks;

    /// The index of the record that is being replayed.
    std::size_t m_index = 0;

    /// The running action's command record; meaningless if none is running.
    int m_running = 0;

    /// Commands that were recorded while another was being ended.
    std::deque<Pending> m_pending;

    /// The record that failed; 0 if none has so far.
    int m_failedNumber = 0;
};

bool IsInteractive(const CommandRecord& record)
{
    const ICommand* pCommand = ICommandManager::Get()->GetCommand(record.commandId);
    return pCommand != nullptr && pCommand->IsInteractive();
}

/// True for a record that a plain command writes when it has done its work.
bool IsResult(const JournalRecord& record)
{
    return std::holds_alternative<UndoRecord>(record.what) ||
           std::holds_alternative<RedoRecord>(record.what) ||
           std::holds_alternative<MarkRecord>(record.what);
}

bool IsActionRunning()
{
    return ActionRunner::GetInstance().GetAction() != nullptr;
}

JournalReplayResult Replay::Run()
{
    JournalReplayResult result;
    for (const JournalRecord& record : m_records)
    {
        const auto* pCommand = std::get_if<CommandRecord>(&record.what);
        if (pCommand != nullptr && !m_marks.Has(record.number))
            result.unfinishedCommands.push_back(pCommand->commandId);
    }
    for (m_index = 0; m_index < m_records.size() && result.failure.empty(); ++m_index)
    {
        result.isStopped = !m_target.OnProgress(m_index, m_records.size());
        if (result.isStopped)
            break;
        result.failure = RunRecord();
        result.repeatedCount += result.failure.empty() ? 1 : 0;
    }
    ActionManager::Reset();
    result.failedNumber = m_failedNumber;
    result.missingMarks = FindMissingMarks();
    return result;
}

std::string Replay::RunRecord()
{
    const JournalRecord& record = m_records[m_index];
    const std::string failure = std::visit(*this, record.what);
    return failure.empty() ? RunPending() : FailAt(record.number, failure);
}

/// Runs the commands whose turn has come.
std::string Replay::RunPending()
{
    while (!m_pending.empty() && !MustWait(m_pending.front()))
    {
        const Pending command = m_pending.front();
        m_pending.pop_front();
        const std::string failure = RunCommand(command);
        if (!failure.empty())
            return FailAt(command.number, failure);
    }
    return {};
}

std::string Replay::operator()(const CommandRecord& record)
{
    const int number = m_records[m_index].number;
    const Pending command{number, m_index, record};
    if (m_marks.IsRefused(number))
        return {};
    if (!MustWait(command))
        return RunCommand(command);
    m_pending.push_back(command);
    return {};
}

std::string Replay::operator()(const PointRecord& record)
{
    if (!IsActionRunning())
        return "a point without a running command";
    bool isDone = false;
    ActionRunner::GetInstance().Operate([&record, &isDone](IAction& action) {
        isDone = action.ReplayPoint(record.point, record.entity);
        JournalManager::GetInstance().FinishStep();
    });
    return isDone ? "" : "the point cannot be replayed";
}

std::string Replay::operator()(const ValueRecord& record)
{
    if (!IsActionRunning())
        return "a value without a running command";
    bool isDone = false;
    ActionRunner::GetInstance().Operate([&record, &isDone](IAction& action) {
        isDone = action.ReplayValue(record.field, record.text, record.value);
    });
    return isDone ? "" : "the value cannot be replayed";
}

std::string Replay::operator()(const SelectionRecord& record)
{
    return m_target.ReplaySelection(record) ? "" : "an entity to be selected does not exist";
}

std::string Replay::operator()(const PropertyRecord& record)
{
    if (m_target.ReplayProperty(record))
        return {};
    return "the property \"" + ToUtf8(record.property) + "\" of \"" + ToUtf8(record.object) +
           "\" cannot be set";
}

std::string Replay::operator()(const UndoRecord& record)
{
    return m_target.VerifyUndo(record) ? "" : TellUndone("undo", record.entity);
}

std::string Replay::operator()(const RedoRecord& record)
{
    return m_target.VerifyRedo(record) ? "" : TellUndone("redo", record.entity);
}

std::string Replay::operator()(const MarkRecord& record)
{
    const std::string actual = m_target.VerifyMark(record);
    return actual.empty()
               ? ""
               : "the drawing is different: expected " + record.digest + ", actual " + actual;
}

std::string Replay::TellUndone(const std::string& what, int expected) const
{
    const std::string failure =
        "the " + what + " had a different result: expected entity " + std::to_string(expected);
    const std::optional<int> actual = m_target.GetLastUndone();
    return actual.has_value() ? failure + ", actual " + std::to_string(*actual) : failure;
}

std::string Replay::operator()(const EndRecord& record)
{
    if (IsActionRunning() && m_running == record.command)
        ActionManager::Reset();
    return {};
}

/// True while a command is running that this one has to wait for: in the journal it ended before
/// this one began.
bool Replay::MustWait(const Pending& command) const
{
    return IsActionRunning() && !IsBeside(command) && m_marks.IsAfter(m_running, m_index);
}

/// True for a plain command that ran alongside the running action.
bool Replay::IsBeside(const Pending& command) const
{
    return !IsInteractive(command.record) && m_marks.IsBefore(command.number, m_running);
}

/// False for a plain command that had not finished where the journal ends: it is replayed only if
/// its result is in the journal.
bool Replay::IsWorthRunning(const Pending& command) const
{
    if (m_marks.Has(command.number) || IsInteractive(command.record))
        return true;
    std::size_t next = command.index + 1;
    // The action it waited for ended first.
    while (next < m_records.size() && std::holds_alternative<EndRecord>(m_records[next].what))
        ++next;
    return next < m_records.size() && IsResult(m_records[next]);
}

/// Plain commands ran alongside the action: their marks come first. An action that was ended by
/// another one gets no mark if that one did anything: a mark after it would make the other one
/// wait.
std::vector<EndRecord> Replay::FindMissingMarks() const
{
    std::vector<EndRecord> plain;
    std::vector<EndRecord> interactive;
    for (std::size_t i = 0; i < m_records.size(); ++i)
    {
        const int number = m_records[i].number;
        const auto* pCommand = std::get_if<CommandRecord>(&m_records[i].what);
        if (pCommand == nullptr || m_marks.Has(number))
            continue;
        if (!IsInteractive(*pCommand))
            plain.push_back({number, !IsWorthRunning({number, i, *pCommand})});
        else if (IsFollowedByCommandsOnly(i))
            interactive.push_back({number, false});
    }
    plain.insert(plain.end(), interactive.begin(), interactive.end());
    return plain;
}

/// True if nothing was done after the next action was requested.
bool Replay::IsFollowedByCommandsOnly(std::size_t index) const
{
    const auto isAction = [this](const JournalRecord& record) {
        const auto* pCommand = std::get_if<CommandRecord>(&record.what);
        return pCommand != nullptr && IsInteractive(*pCommand) && !m_marks.IsRefused(record.number);
    };
    const auto begin = m_records.begin() + static_cast<std::ptrdiff_t>(index) + 1;
    const auto next = std::find_if(begin, m_records.end(), isAction);
    return std::all_of(next, m_records.end(), [](const JournalRecord& record) {
        return std::holds_alternative<CommandRecord>(record.what);
    });
}

std::string Replay::RunCommand(const Pending& command)
{
    const std::string name = '"' + ToUtf8(command.record.commandId) + '"';
    ICommand* pCommand = ICommandManager::Get()->GetCommand(command.record.commandId);
    if (pCommand == nullptr)
        return "unknown command " + name;
    if (!IsWorthRunning(command))
        return {};
    if (pCommand->IsInteractive())
    {
        ActionManager::Reset();
        m_running = command.number;
    }
    if (!pCommand->IsEnabled())
        return "the command " + name + " is disabled";
    if (!m_target.CanRepeat(command.record))
        return "the command " + name + " cannot do what its parameters say";
    ActionManager::RunCommand(command.record.commandId, command.record.parameters);
    return {};
}

std::string Replay::FailAt(int number, const std::string& failure)
{
    m_failedNumber = number;
    return "record " + std::to_string(number) + ": " + failure;
}

}

bool JournalReplayer::IsReplaying()
{
    return s_isReplaying;
}

JournalReplayResult JournalReplayer::Replay(const std::vector<JournalRecord>& records,
                                            IJournalReplayTarget& target)
{
    if (ActionRunner::GetInstance().IsInEventLoop())
    {
        JournalReplayResult refused;
        refused.failure = "a command is running";
        return refused;
    }
    ActionManager::Reset();
    const EventLoopOffScope eventLoopOff;
    const TimesOffScope timesOff;
    const ScopedValue<bool> replaying(s_isReplaying, true);
    JournalReplayResult result;
    FirstException exception;
    exception.Catch([&] { result = vesk::Replay(records, target).Run(); });
    // No action may go on without its loop afterwards.
    exception.Catch(&ActionManager::Reset);
    exception.Throw();
    return result;
}

}
