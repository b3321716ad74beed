#include "HostUi/TerminationRequests.h"

#include <windows.h>

#include <mutex>

namespace vesk
{
namespace
{

std::mutex s_mutex;
TerminationRequests* s_pRequests = nullptr;

/// Called in a system thread.
BOOL WINAPI OnConsole(DWORD)
{
    const std::lock_guard lock(s_mutex);
    if (s_pRequests == nullptr)
        return FALSE;
    QMetaObject::invokeMethod(s_pRequests, &TerminationRequests::requested, Qt::QueuedConnection);
    return TRUE;
}

}

class TerminationRequests::Listener
{
public:
    explicit Listener(TerminationRequests& requests)
    {
        const std::lock_guard lock(s_mutex);
        s_pRequests = &requests;
        ::SetConsoleCtrlHandler(&OnConsole, TRUE);
    }

    ~Listener()
    {
        ::SetConsoleCtrlHandler(&OnConsole, FALSE);
        const std::lock_guard lock(s_mutex);
        s_pRequests = nullptr;
    }

    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
};

TerminationRequests::TerminationRequests() : m_pListener(std::make_unique<Listener>(*this)) {}

TerminationRequests::~TerminationRequests() = default;

/// A failed write does not end the process here.
void SurviveFailedWrites() {}

}
