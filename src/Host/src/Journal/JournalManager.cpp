#include "Journal/JournalManager.h"

#include "Foundation/Text.h"
#include "Foundation/UtcTime.h"
#include "Journal/IJournalData.h"
#include "Journal/IJournalUiObject.h"
#include "Journal/JournalFormat.h"
#include "Journal/JournalLines.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <mutex>
#include <optional>
#include <string_view>
#include <utility>

namespace vesk
{

namespace
{

constexpr std::size_t KeptLines = 20;

/// The last lines written. Thread-safe.
class LastLines
{
public:
    /// Reuses the memory of the line that it replaces.
    void Add(std::string_view line)
    {
        const std::lock_guard lock(m_mutex);
        m_lines[m_count++ % KeptLines].assign(line);
    }

    void Clear()
    {
        const std::lock_guard lock(m_mutex);
        m_count = 0;
    }

    std::vector<std::string> Get() const
    {
        const std::lock_guard lock(m_mutex);
        std::vector<std::string> lines;
        for (std::size_t i = m_count - std::min(m_count, KeptLines); i < m_count; ++i)
            lines.push_back(m_lines[i % KeptLines]);
        return lines;
    }

private:
    mutable std::mutex m_mutex;
    std::array<std::string, KeptLines> m_lines;

    /// How many were added since the last Clear.
    std::size_t m_count = 0;
};

/// True if a step is finished by what the record says.
bool EndsStep(const JournalRecord& record)
{
    return std::holds_alternative<PointRecord>(record.what) ||
           std::holds_alternative<PropertyRecord>(record.what) ||
           std::holds_alternative<UndoRecord>(record.what) ||
           std::holds_alternative<RedoRecord>(record.what);
}

/// Limited to the greatest integer, which is reached after 24 days.
int MillisecondsSince(std::chrono::steady_clock::time_point begin)
{
    const auto elapsed = std::chrono::steady_clock::now() - begin;
    const auto count = std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count();
    return static_cast<int>(std::min<std::int64_t>(count, std::numeric_limits<int>::max()));
}

class JournalManagerImpl final : public JournalManager
{
public:
    bool Open(const std::string& path, std::string& error) override;
    bool Reserve(const std::string& path, std::string& error) override;
    void Continue(int lastNumber) override;
    bool MoveTo(const std::string& path, std::string& error) override;
    bool IsInUse(const std::string& path) const override { return m_file.IsInUse(path); }
    void SetProgram(const std::wstring& program) override { m_program = program; }
    void SetVersion(int version) override { m_version = version; }
    void SetDigestSource(std::function<std::string()> source) override;
    bool SetTimed(bool isTimed) override { return std::exchange(m_isTimed, isTimed); }
    void SetSynced(bool isSynced) override { m_file.SetSynced(isSynced); }
    bool IsKept() const override { return m_file.IsKept(); }
    bool Close() override;
    int Add(decltype(JournalRecord::what) what) override;
    void FinishStep() override;
    int TakeAnnounced(const std::wstring& commandId) override;
    std::vector<std::string> GetLastLines() const override { return m_lastLines.Get(); }
    void AddObserver(IJournalObserver* pObserver) override;
    void RemoveObserver(IJournalObserver* pObserver) override;

    void AddCommandData(OwnerPtr<IJournalCommandData> opData) override;
    void AddCommandDataWithParameters(OwnerPtr<IJournalCommandData> opData) override;
    void AddUiObject(OwnerPtr<IJournalUiObject> opObject, int kind, int reserved) override;

private:
    /// The record of a command that a control is about to run; number 0 once it has been taken.
    struct Announced
    {
        std::wstring commandId;
        int number = 0;
    };

    void StartAnew();
    std::string HeaderLine() const;
    void Write(JournalRecord& record);
    void Announce(std::wstring commandId, const CommandParameters& parameters);

    template <class Tell>
    void TellObservers(const Tell& tell)
    {
        for (IJournalObserver* pObserver : std::vector<IJournalObserver*>(m_observers))
        {
            const auto found = std::find(m_observers.begin(), m_observers.end(), pObserver);
            if (found != m_observers.end())
                tell(*pObserver);
        }
    }

    JournalLines m_file;
    std::wstring m_program;
    int m_version = HeaderRecord::CurrentVersion;
    std::chrono::steady_clock::time_point m_begin = std::chrono::steady_clock::now();
    int m_lastNumber = 0;
    std::function<std::string()> m_digestSource;
    std::string m_lastDigest;

    /// True if a record of a finished step has no mark yet.
    bool m_isMarkDue = false;
    bool m_isTimed = true;
    Announced m_announced;
    LastLines m_lastLines;

    /// The line of a record while it is written; keeps its memory for the next one.
    std::string m_line;
    std::vector<IJournalObserver*> m_observers;
};

bool JournalManagerImpl::Open(const std::string& path, std::string& error)
{
    if (!m_file.Replace(path, error))
        return false;
    StartAnew();
    m_file.Add(HeaderLine());
    return true;
}

bool JournalManagerImpl::Reserve(const std::string& path, std::string& error)
{
    if (!m_file.Reserve(path, error))
        return false;
    StartAnew();
    return true;
}

void JournalManagerImpl::Continue(int lastNumber)
{
    m_file.Continue();
    m_lastNumber = lastNumber;
    m_announced = {};
    m_isMarkDue = false;
    m_begin = std::chrono::steady_clock::now();
}

bool JournalManagerImpl::MoveTo(const std::string& path, std::string& error)
{
    return m_file.MoveTo(path, HeaderLine(), error);
}

bool JournalManagerImpl::Close()
{
    StartAnew();
    m_version = HeaderRecord::CurrentVersion;
    return m_file.Close();
}

void JournalManagerImpl::StartAnew()
{
    m_lastNumber = 0;
    m_announced = {};
    m_isMarkDue = false;
    m_begin = std::chrono::steady_clock::now();
    m_lastLines.Clear();
}

/// Empty for records of version 1.
std::string JournalManagerImpl::HeaderLine() const
{
    if (m_version < HeaderRecord::CurrentVersion)
        return {};
    const std::string time = FormatUtcTime(std::chrono::system_clock::now());
    const HeaderRecord header{m_version, m_program, FromUtf8(time)};
    return JournalFormat::ToLine({0, header}) + '\n';
}

void JournalManagerImpl::SetDigestSource(std::function<std::string()> source)
{
    m_digestSource = std::move(source);
    m_lastDigest = m_digestSource ? m_digestSource() : std::string();
    m_isMarkDue = false;
}

int JournalManagerImpl::Add(decltype(JournalRecord::what) what)
{
    JournalRecord record{0, std::move(what)};
    Write(record);
    return record.number;
}

/// Gives the record its number and writes it.
void JournalManagerImpl::Write(JournalRecord& record)
{
    const auto* pEnd = std::get_if<EndRecord>(&record.what);
    record.number = pEnd != nullptr ? pEnd->command : m_lastNumber + 1;
    m_line.clear();
    JournalFormat::AppendLine(record, m_line);
    if (pEnd == nullptr)
        m_lastNumber = record.number;
    m_isMarkDue = m_isMarkDue || EndsStep(record);

    m_lastLines.Add(m_line);
    m_line += '\n';
    m_file.Add(m_line);
    TellObservers([&record](IJournalObserver& observer) { observer.OnRecord(record); });
}

void JournalManagerImpl::FinishStep()
{
    if (!m_digestSource)
        return;
    const std::string digest = m_digestSource();
    if (!m_isMarkDue && digest == m_lastDigest)
        return;
    m_isMarkDue = false;
    m_lastDigest = digest;
    Add(MarkRecord{digest, m_isTimed ? std::optional(MillisecondsSince(m_begin)) : std::nullopt});
}

int JournalManagerImpl::TakeAnnounced(const std::wstring& commandId)
{
    const bool isAnnounced = m_announced.commandId == commandId;
    return isAnnounced ? std::exchange(m_announced.number, 0) : 0;
}

void JournalManagerImpl::Announce(std::wstring commandId, const CommandParameters& parameters)
{
    JournalRecord record{0, CommandRecord{std::move(commandId), parameters}};
    Write(record);
    m_announced = {std::move(std::get<CommandRecord>(record.what).commandId), record.number};
}

void JournalManagerImpl::AddObserver(IJournalObserver* pObserver)
{
    const auto found = std::find(m_observers.begin(), m_observers.end(), pObserver);
    if (pObserver != nullptr && found == m_observers.end())
        m_observers.push_back(pObserver);
}

void JournalManagerImpl::RemoveObserver(IJournalObserver* pObserver)
{
    m_observers.erase(std::remove(m_observers.begin(), m_observers.end(), pObserver),
                      m_observers.end());
}

void JournalManagerImpl::AddCommandData(OwnerPtr<IJournalCommandData> opData)
{
    if (opData != nullptr)
        Announce(opData->GetCommandId(), {});
}

void JournalManagerImpl::AddCommandDataWithParameters(OwnerPtr<IJournalCommandData> opData)
{
    if (opData != nullptr)
        Announce(opData->GetCommandId(), opData->GetCommandParameters());
}

void JournalManagerImpl::AddUiObject(OwnerPtr<IJournalUiObject> opObject, int kind,
                                     int /*reserved*/)
{
    // Not kept: the code that frees its content may belong to a library that gets unloaded.
    if (opObject != nullptr)
        TellObservers([&](IJournalObserver& observer) { observer.OnUiObject(*opObject, kind); });
}

}

JournalManager& JournalManager::GetInstance()
{
    // Never destroyed, so that a warning in a thread that outlives main still finds the last lines.
    static JournalManagerImpl* const s_pManager = new JournalManagerImpl;
    return *s_pManager;
}

}
