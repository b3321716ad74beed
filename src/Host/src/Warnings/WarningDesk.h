#pragma once

#include "Foundation/OwnerPtr.h"
#include "Warnings/DebugMessageMgr.h"
#include "Warnings/IDebugWarningDisplayer.h"

#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace vesk
{

class IDebugWarningScheduler;

/// Decides which warnings are shown to the user, and when: one at a time, and none that the user
/// chose to ignore.
///
/// Thread-safe. The mutex is never held while a warning is shown.
class WarningDesk
{
public:
    /// Never destroyed, so that a warning in a thread that outlives main still finds it.
    static WarningDesk& GetInstance();

    void Present(const DebugWarning& warning);

    void SetAttended(bool isAttended);
    void SetScheduler(IDebugWarningScheduler* pScheduler);
    std::optional<ShownDebugWarning> GetShown();
    int GetUnshownCount();

    /// Restores the initial state.
    void Reset();

    /// Frees the displayer, before the library that created it is unloaded.
    void DropDisplayer();

private:
    using Place = std::pair<std::string, int>;

    class Turn;

    WarningDesk();

    bool Claim(const DebugWarning& warning);
    bool IsSilent(const DebugWarning& warning) const;
    void Show(const DebugWarning& warning);
    void ShowPostponed();
    void Note(const Place& place, bool isToAskAgain);
    IDebugWarningDisplayer* GetDisplayer();

    std::mutex m_mutex;
    bool m_isAttended;
    IDebugWarningScheduler* m_pScheduler = nullptr;
    OwnerPtr<IDebugWarningDialogDisplayer> m_opDisplayer;

    /// The sites whose warnings are not shown: permanently, or until the event loop is idle.
    std::set<Place> m_silent;

    /// The warning on screen, or about to be.
    std::optional<ShownDebugWarning> m_shown;

    /// A warning waiting for the event loop.
    std::optional<DebugWarning> m_postponed;
    int m_unshownCount = 0;
};

}
