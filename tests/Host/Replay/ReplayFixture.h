#pragma once

#include "Host/Command/ActionFixture.h"
#include "Replay/JournalReplayer.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace vesk
{

/// A target that logs the replayed model records, as "undo 5".
class ReplayTarget final : public IJournalReplayTarget
{
public:
    ReplayTarget(Log& log, std::size_t stopAt, const std::wstring& impossible)
        : m_log(log), m_stopAt(stopAt), m_impossible(impossible)
    {}

    bool CanRepeat(const CommandRecord& record) override
    {
        return record.commandId != m_impossible;
    }

    bool OnProgress(std::size_t done, std::size_t total) override
    {
        m_progress.push_back(std::to_string(done) + " of " + std::to_string(total));
        return done != m_stopAt;
    }

    const Log& GetProgress() const { return m_progress; }

    bool ReplaySelection(const SelectionRecord& record) override
    {
        m_log.push_back("select " + std::to_string(record.entities.size()));
        return record.entities != std::vector<int>{13};
    }

    bool ReplayProperty(const PropertyRecord& record) override
    {
        m_log.push_back("property " + std::string(record.value.begin(), record.value.end()));
        return record.object == L"drawing";
    }

    bool VerifyUndo(const UndoRecord& record) override
    {
        m_log.push_back("undo " + std::to_string(record.entity));
        return record.entity != 13;
    }

    bool VerifyRedo(const RedoRecord& record) override
    {
        m_log.push_back("redo " + std::to_string(record.entity));
        return record.entity != 13;
    }

    std::optional<int> GetLastUndone() override { return 5; }

    std::string VerifyMark(const MarkRecord& record) override
    {
        m_log.push_back("mark " + record.digest);
        return record.digest == "a1" ? "" : "a1";
    }

private:
    Log& m_log;
    std::size_t m_stopAt;
    std::wstring m_impossible;
    Log m_progress;
};

/// Some commands, and a journal that is assembled record by record.
struct ReplayFixture : ActionFixture
{
    ReplayFixture()
    {
        AddInteractive("Line");
        AddInteractive("Erase");
        AddPlain("Undo");
        AddPlain("Zoom");
    }

    ReplayFixture& Command(const std::wstring& id)
    {
        records.push_back({++lastNumber, CommandRecord{id, {}}});
        return *this;
    }

    ReplayFixture& Point(double x, std::optional<int> entity = {})
    {
        records.push_back({++lastNumber, PointRecord{{x, 0, 0}, entity}});
        return *this;
    }

    ReplayFixture& Undo(int entity)
    {
        records.push_back({++lastNumber, UndoRecord{entity}});
        return *this;
    }

    ReplayFixture& End(int command, bool isRefused = false)
    {
        records.push_back({command, EndRecord{command, isRefused}});
        return *this;
    }

    JournalReplayResult Replay()
    {
        ReplayTarget target(log, stopAt, impossible);
        const JournalReplayResult result = JournalReplayer::Replay(records, target);
        progress = target.GetProgress();
        return result;
    }

    std::vector<JournalRecord> records;
    int lastNumber = 0;

    /// The index of the record before which the target stops the replay.
    std::size_t stopAt = std::numeric_limits<std::size_t>::max();
    Log progress;

    /// The command that the target cannot replay.
    std::wstring impossible;
};

}
