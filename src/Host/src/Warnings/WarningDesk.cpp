#include "Warnings/WarningDesk.h"

#include "Foundation/IApplication.h"
#include "Warnings/IDebugWarningScheduler.h"
#include "Warnings/NqUiInterfaceFactory.h"

#include <chrono>
#include <cstdlib>
#include <string_view>

namespace vesk
{

namespace
{

/// The minimum time for which a site is silent after "ignore once".
constexpr std::chrono::seconds Rest{1};

bool IsAttendedAtFirst()
{
    const char* pValue = std::getenv("VESK_UNATTENDED");
    return pValue == nullptr || std::string_view(pValue) != "1";
}

}

/// Exists while one warning is shown; however it ends, the next one can be shown.
class WarningDesk::Turn
{
public:
    explicit Turn(WarningDesk& desk) : m_desk(desk) {}

    ~Turn()
    {
        const std::lock_guard lock(m_desk.m_mutex);
        m_desk.m_shown.reset();
    }

    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

private:
    WarningDesk& m_desk;
};

WarningDesk::WarningDesk() : m_isAttended(IsAttendedAtFirst()) {}

WarningDesk& WarningDesk::GetInstance()
{
    static WarningDesk* const s_pDesk = new WarningDesk;
    return *s_pDesk;
}

void WarningDesk::Present(const DebugWarning& warning)
{
    if (Claim(warning))
        Show(warning);
}

void WarningDesk::SetAttended(bool isAttended)
{
    const std::lock_guard lock(m_mutex);
    m_isAttended = isAttended;
}

void WarningDesk::SetScheduler(IDebugWarningScheduler* pScheduler)
{
    const std::lock_guard lock(m_mutex);
    m_pScheduler = pScheduler;
    m_postponed.reset();
}

std::optional<ShownDebugWarning> WarningDesk::GetShown()
{
    const std::lock_guard lock(m_mutex);
    return m_shown;
}

int WarningDesk::GetUnshownCount()
{
    const std::lock_guard lock(m_mutex);
    return m_unshownCount;
}

void WarningDesk::Reset()
{
    const std::lock_guard lock(m_mutex);
    m_isAttended = IsAttendedAtFirst();
    m_silent.clear();
    m_unshownCount = 0;
}

void WarningDesk::DropDisplayer()
{
    m_opDisplayer.Reset();
}

/// True if the caller must show the warning now; no other is shown until it has been.
bool WarningDesk::Claim(const DebugWarning& warning)
{
    const std::lock_guard lock(m_mutex);
    if (IsSilent(warning))
        return false;
    if (m_shown.has_value() || m_postponed.has_value())
    {
        if (m_shown.has_value())
            ++m_shown->suppressed;
        ++m_unshownCount;
        return false;
    }
    if (m_pScheduler == nullptr || m_pScheduler->IsDialogAllowed())
    {
        m_shown = ShownDebugWarning{warning.function, warning.message, 0};
        return true;
    }
    // Posted first because it may fail: a postponed warning that is never shown would block all
    // others.
    m_pScheduler->Post([] { GetInstance().ShowPostponed(); });
    m_postponed = warning;
    return false;
}

/// True for a warning that is only logged.
bool WarningDesk::IsSilent(const DebugWarning& warning) const
{
    const bool isNobodyThere = !m_isAttended && IApplication::Get() != nullptr;
    const bool isAnswered = m_silent.count({warning.file, warning.line}) != 0;
    // While a dialog is open every warning is counted, even from a silenced site.
    return isNobodyThere || (isAnswered && !m_shown.has_value());
}

void WarningDesk::Show(const DebugWarning& warning)
{
    const Turn turn(*this);
    IDebugWarningDisplayer* pDisplayer = GetDisplayer();
    if (pDisplayer == nullptr)
        return;
    const bool isToAskAgain = pDisplayer->Display(warning.file, warning.line, warning.function,
                                                  warning.message, warning.person, warning.date);
    Note({warning.file, warning.line}, isToAskAgain);
}

void WarningDesk::ShowPostponed()
{
    std::optional<DebugWarning> warning;
    {
        const std::lock_guard lock(m_mutex);
        warning.swap(m_postponed);
    }
    if (warning.has_value())
        Present(*warning);
}

void WarningDesk::Note(const Place& place, bool isToAskAgain)
{
    const std::lock_guard lock(m_mutex);
    // Without an event loop the user cannot be flooded.
    if (isToAskAgain && m_pScheduler == nullptr)
        return;
    if (isToAskAgain)
        m_pScheduler->PostWhenIdle(Rest, [this, place] {
            const std::lock_guard restLock(m_mutex);
            m_silent.erase(place);
        });
    m_silent.insert(place);
}

IDebugWarningDisplayer* WarningDesk::GetDisplayer()
{
    if (m_opDisplayer == nullptr && NqUiInterfaceFactory::m_pFactory != nullptr)
        m_opDisplayer = NqUiInterfaceFactory::m_pFactory->CreateDebugWarningDialogDisplayer();
    return m_opDisplayer.Get();
}

}
