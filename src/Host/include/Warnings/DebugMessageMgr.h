#pragma once

#include "Foundation/HostExport.h"

#include <optional>
#include <string>

namespace vesk
{

/// One failed precondition, as reported.
struct DebugWarning
{
    std::string file;
    int line = 0;
    std::string function;
    std::wstring message;
    std::wstring person;
    std::wstring date;
};

class IDebugWarningScheduler;

/// The warning that the user is being asked about.
struct ShownDebugWarning
{
    std::string function;
    std::wstring message;
    int suppressed = 0; ///< How many warnings were raised since it came on screen.
};

/// Hears of every warning, in the thread that raised it.
class VESK_HOST_API IDebugWarningObserver
{
public:
    virtual ~IDebugWarningObserver() = default;

    /// Called after the warning was logged. Must not raise a warning itself.
    virtual void OnDebugWarning(const DebugWarning& warning) = 0;
};

/// Takes every failed precondition of the application, writes it to the log and shows it to the
/// user.
///
/// One warning is shown at a time, through the displayer of the control library; those raised
/// meanwhile are counted and logged. One that is raised while something is painted, or in another
/// thread, is shown from the event loop. A place (file and line) of which the user said "ignore
/// all" is not shown again; one that was ignored once rests until the event loop is idle, a second
/// at least.
///
/// Operations may be called from any thread.
class VESK_HOST_API DebugMessageMgr
{
public:
    static DebugMessageMgr* GetDebugMessageMgr();

    /// Logs the warning, tells the observers, and shows it. Never throws and never ends the
    /// process.
    ///
    /// A place (file and line) writes at most ten lines; the rest are counted and told in one
    /// closing line when the log is closed.
    void ShowDebugWarn(const std::string& file, int line, const std::string& function,
                       const std::wstring& message, const std::wstring& person,
                       const std::wstring& date);

    /// Logs to `path` (UTF-8) from now on, appending; closes the log before. False when the file
    /// cannot be opened: the log then goes to standard error, as it does before the first call.
    bool OpenLog(const std::string& path);

    /// Where the log goes (UTF-8, absolute); empty while it goes to standard error.
    std::string GetLogPath() const;

    /// Writes the closing lines of suppressed places and closes the file. False when there was a
    /// file and a line is missing in it: that one went to standard error.
    bool CloseLog();

    /// Whether somebody is there to be asked. At first so, unless VESK_UNATTENDED is set to 1 in
    /// the environment. While nobody is and an application exists, warnings are only logged.
    void SetAttended(bool isAttended);

    /// Chooses who knows the event loop; null for nobody. Not owned.
    void SetScheduler(IDebugWarningScheduler* pScheduler);

    /// The warning on screen, if there is one.
    std::optional<ShownDebugWarning> GetShownWarning() const;

    /// How many warnings would have been shown, had another not been on screen.
    int GetUnshownCount() const;

    /// Is as at first: every place is shown, nothing is counted, and somebody is there unless the
    /// environment says otherwise.
    void Reset();

    /// Adds an observer (not owned), told until it is removed. Null and one that is already there
    /// are ignored.
    void AddObserver(IDebugWarningObserver* pObserver);

    /// Waits until no other thread is telling the observer any more; it may be destroyed
    /// afterwards.
    void RemoveObserver(IDebugWarningObserver* pObserver);

private:
    DebugMessageMgr() = default;
};

}
