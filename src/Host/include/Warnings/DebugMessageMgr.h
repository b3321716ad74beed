#pragma once

#include "Foundation/HostExport.h"

#include <optional>
#include <string>

namespace vesk
{

/// One failed precondition, as reported.
struct DebugWarning
{
    std::string file;     ///< The source file, as the compiler names it.
    int line = 0;         ///< The line of the check.
    std::string function; ///< Qualified, like "vesk::QtButton::On".
    std::wstring message; ///< The failed condition.
    std::wstring person;  ///< Who is responsible for the check.
    std::wstring date;    ///< The day the check was written, "2026-11-21".
};

class IDebugWarningScheduler;

/// The warning that the user is being asked about.
struct ShownDebugWarning
{
    std::string function; ///< Of the check that failed.
    std::wstring message; ///< The failed condition.
    int suppressed = 0;   ///< The number of warnings raised since it came on screen.
};

/// Notified of every warning, in the thread that raised it.
class VESK_HOST_API IDebugWarningObserver
{
public:
    virtual ~IDebugWarningObserver() = default;

    /// Called after the warning was logged. Must not raise a warning itself.
    virtual void OnDebugWarning(const DebugWarning& warning) = 0;
};

/// Receives every failed precondition of the application, logs it and shows it to the user.
///
/// One warning is shown at a time, through the displayer of the control library; those raised
/// meanwhile are counted and logged. A warning raised during painting or in another thread is shown
/// from the event loop. Warnings from a site (file and line) for which the user chose "ignore all"
/// are not shown again; after "ignore once" the site is silent until the event loop is idle, for at
/// least one second.
///
/// Operations may be called from any thread.
class VESK_HOST_API DebugMessageMgr
{
public:
    /// The manager; it lives as long as the process. Never null.
    static DebugMessageMgr* GetDebugMessageMgr();

    /// Logs the warning, notifies the observers, and shows it. Never throws and never ends the
    /// process.
    ///
    /// At most ten lines are written per site (file and line); further warnings are counted and
    /// summarised in one closing line when the log is closed.
    void ShowDebugWarn(const std::string& file, int line, const std::string& function,
                       const std::wstring& message, const std::wstring& person,
                       const std::wstring& date);

    /// Closes the current log, then appends to the file at `path` (UTF-8). False if the file cannot
    /// be opened: the log then goes to standard error, as it does before the first call.
    bool OpenLog(const std::string& path);

    /// The absolute path of the log file (UTF-8); empty while the log goes to standard error.
    std::string GetLogPath() const;

    /// Writes the closing lines of suppressed sites and closes the file. False if a file was open
    /// and a line is missing from it: that line went to standard error.
    bool CloseLog();

    /// Sets whether a user is present to answer warnings. Initially true, unless the environment
    /// variable VESK_UNATTENDED is 1. While it is false and an application exists, warnings are
    /// only logged.
    void SetAttended(bool isAttended);

    /// Sets the scheduler, which gives access to the event loop; null for none. Not owned.
    void SetScheduler(IDebugWarningScheduler* pScheduler);

    /// The warning on screen, if any.
    std::optional<ShownDebugWarning> GetShownWarning() const;

    /// The number of warnings that were not shown because another was on screen or waiting to be
    /// shown.
    int GetUnshownCount() const;

    /// Restores the initial state: every site is shown, the unshown count is zero, and a user is
    /// present unless VESK_UNATTENDED is 1.
    void Reset();

    /// Adds an observer (not owned), notified until it is removed. Null and an observer that was
    /// already added are ignored.
    void AddObserver(IDebugWarningObserver* pObserver);

    /// Removes an observer and waits until no other thread is calling it; it may be destroyed
    /// afterwards.
    void RemoveObserver(IDebugWarningObserver* pObserver);

private:
    DebugMessageMgr() = default;
};

}
