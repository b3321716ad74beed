#include "Journal/JournalManager.h"

#include "Journal/IJournalData.h"
#include "Journal/IJournalUiObject.h"
#include "Journal/JournalFormat.h"
#include "Journal/JournalLines.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <mutex>
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
    void Add(const std::string& line)
    {
        const std::lock_guard lock(m_mutex);
        m_lines.push_back(line);
        if (m_lines.size() > KeptLines)
            m_lines.pop_front();
    }

    void Clear()
    {
        const std::lock_guard lock(m_mutex);
        m_lines.clear();
    }

    std::vector<std::string> Get() const
    {
        const std::lock_guard lock(m_mutex);
        return {m_lines.begin(), m_lines.end()};
    }

private:
    mutable std::mutex m_mutex;
    std::deque<std::string> m_lines;
};

class JournalManagerImpl final : public JournalManager
{
public:
    bool Open(const std::string& path, std::string& error) override;
    bool Reserve(const std::string& path, std::string& error) override;
    void Continue(int lastNumber) override;
    bool MoveTo(const std::string& path, std::string& error) override;
    bool IsKept() const override { return m_file.IsKept(); }
    bool Close() override;
    int Add(decltype(JournalRecord::what) what) override;
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
    void Announce(const CommandRecord& record);

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
    int m_lastNumber = 0;
    Announced m_announced;
    LastLines m_lastLines;
    std::vector<IJournalObserver*> m_observers;
};

bool JournalManagerImpl::Open(const std::string& path, std::string& error)
{
    if (!m_file.Replace(path, error))
        return false;
    StartAnew();
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
}

bool JournalManagerImpl::MoveTo(const std::string& path, std::string& error)
{
    return m_file.MoveTo(path, error);
}

bool JournalManagerImpl::Close()
{
    StartAnew();
    return m_file.Close();
}

void JournalManagerImpl::StartAnew()
{
    m_lastNumber = 0;
    m_announced = {};
    m_lastLines.Clear();
}

int JournalManagerImpl::Add(decltype(JournalRecord::what) what)
{
    JournalRecord record{0, std::move(what)};
    const auto* pEnd = std::get_if<EndRecord>(&record.what);
    record.number = pEnd != nullptr ? pEnd->command : m_lastNumber + 1;
    const std::string line = JournalFormat::ToLine(record);
    if (pEnd == nullptr)
        m_lastNumber = record.number;

    m_lastLines.Add(line);
    m_file.Add(line + '\n');
    TellObservers([&record](IJournalObserver& observer) { observer.OnRecord(record); });
    return record.number;
}

int JournalManagerImpl::TakeAnnounced(const std::wstring& commandId)
{
    const bool isAnnounced = m_announced.commandId == commandId;
    return isAnnounced ? std::exchange(m_announced.number, 0) : 0;
}

void JournalManagerImpl::Announce(const CommandRecord& record)
{
    m_announced = {record.commandId, Add(record)};
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
        Announce({opData->GetCommandId(), {}});
}

void JournalManagerImpl::AddCommandDataWithParameters(OwnerPtr<IJournalCommandData> opData)
{
    if (opData != nullptr)
        Announce({opData->GetCommandId(), opData->GetCommandParameters()});
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
