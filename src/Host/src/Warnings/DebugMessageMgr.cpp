#include "Warnings/DebugMessageMgr.h"

#include "Foundation/Text.h"
#include "Warnings/WarningDesk.h"
#include "Warnings/WarningLog.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace vesk
{

namespace
{

/// The observers, and which of them are being called.
class ObserverList
{
public:
    void Add(IDebugWarningObserver* pObserver)
    {
        const std::lock_guard lock(m_mutex);
        if (pObserver != nullptr && !Contains(pObserver))
            m_observers.push_back(pObserver);
    }

    void Remove(IDebugWarningObserver* pObserver)
    {
        std::unique_lock lock(m_mutex);
        m_observers.erase(std::remove(m_observers.begin(), m_observers.end(), pObserver),
                          m_observers.end());
        m_callEnded.wait(lock, [this, pObserver] { return !IsToldElsewhere(pObserver); });
    }

    void Tell(const DebugWarning& warning)
    {
        for (IDebugWarningObserver* pObserver : GetObservers())
            Tell(pObserver, warning);
    }

private:
    struct Call
    {
        IDebugWarningObserver* pObserver;
        std::thread::id thread;

        bool operator==(const Call& other) const
        {
            return pObserver == other.pObserver && thread == other.thread;
        }
    };

    std::vector<IDebugWarningObserver*> GetObservers()
    {
        const std::lock_guard lock(m_mutex);
        return m_observers;
    }

    void Tell(IDebugWarningObserver* pObserver, const DebugWarning& warning)
    {
        const Call call{pObserver, std::this_thread::get_id()};
        if (!Begin(call))
            return;
        try
        {
            pObserver->OnDebugWarning(warning);
        }
        catch (...)
        {
            // The caller that reports a warning must go on as if nothing had happened.
        }
        End(call);
    }

    /// False if the observer was removed meanwhile.
    bool Begin(const Call& call)
    {
        const std::lock_guard lock(m_mutex);
        if (!Contains(call.pObserver))
            return false;
        m_calls.push_back(call);
        return true;
    }

    void End(const Call& call)
    {
        const std::lock_guard lock(m_mutex);
        m_calls.erase(std::find(m_calls.begin(), m_calls.end(), call));
        m_callEnded.notify_all();
    }

    bool Contains(const IDebugWarningObserver* pObserver) const
    {
        return std::find(m_observers.begin(), m_observers.end(), pObserver) != m_observers.end();
    }

    bool IsToldElsewhere(const IDebugWarningObserver* pObserver) const
    {
        return std::any_of(m_calls.begin(), m_calls.end(), [pObserver](const Call& call) {
            return call.pObserver == pObserver && call.thread != std::this_thread::get_id();
        });
    }

    std::mutex m_mutex;
    std::condition_variable m_callEnded;
    std::vector<IDebugWarningObserver*> m_observers;
    std::vector<Call> m_calls;
};

/// Never destroyed, so that a warning in a thread that outlives main still finds it.
ObserverList& GetObserverList()
{
    static ObserverList* const s_pList = new ObserverList;
    return *s_pList;
}

void Log(const DebugWarning& warning)
{
    WarningLog::GetInstance().Add(warning.file, warning.line,
                                  {{"file", warning.file},
                                   {"line", warning.line},
                                   {"function", warning.function},
                                   {"message", ToUtf8(warning.message)},
                                   {"person", ToUtf8(warning.person)},
                                   {"date", ToUtf8(warning.date)}});
}

}

DebugMessageMgr* DebugMessageMgr::GetDebugMessageMgr()
{
    static DebugMessageMgr s_manager;
    return &s_manager;
}

void DebugMessageMgr::ShowDebugWarn(const std::string& file, int line, const std::string& function,
                                    const std::wstring& message, const std::wstring& person,
                                    const std::wstring& date)
{
    try
    {
        const DebugWarning warning{file, line, function, message, person, date};
        Log(warning);
        GetObserverList().Tell(warning);
        WarningDesk::GetInstance().Present(warning);
    }
    catch (...)
    {
        // Out of memory: a report is not worth ending the program.
    }
}

bool DebugMessageMgr::OpenLog(const std::string& path)
{
    return WarningLog::GetInstance().Open(path);
}

std::string DebugMessageMgr::GetLogPath() const
{
    return WarningLog::GetInstance().GetPath();
}

bool DebugMessageMgr::CloseLog()
{
    return WarningLog::GetInstance().Close();
}

void DebugMessageMgr::SetAttended(bool isAttended)
{
    WarningDesk::GetInstance().SetAttended(isAttended);
}

void DebugMessageMgr::SetScheduler(IDebugWarningScheduler* pScheduler)
{
    WarningDesk::GetInstance().SetScheduler(pScheduler);
}

std::optional<ShownDebugWarning> DebugMessageMgr::GetShownWarning() const
{
    return WarningDesk::GetInstance().GetShown();
}

int DebugMessageMgr::GetUnshownCount() const
{
    return WarningDesk::GetInstance().GetUnshownCount();
}

void DebugMessageMgr::Reset()
{
    WarningDesk::GetInstance().Reset();
}

void DebugMessageMgr::AddObserver(IDebugWarningObserver* pObserver)
{
    GetObserverList().Add(pObserver);
}

void DebugMessageMgr::RemoveObserver(IDebugWarningObserver* pObserver)
{
    GetObserverList().Remove(pObserver);
}

}
