#pragma once

#include "Foundation/HostExport.h"

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

/// Hears of every warning, in the thread that raised it.
class VESK_HOST_API IDebugWarningObserver
{
public:
    virtual ~IDebugWarningObserver() = default;

    /// Called after the warning was logged. Must not raise a warning itself.
    virtual void OnDebugWarning(const DebugWarning& warning) = 0;
};

/// Takes every failed precondition of the application and writes it to the log.
///
/// Operations may be called from any thread.
class VESK_HOST_API DebugMessageMgr
{
public:
    static DebugMessageMgr* GetDebugMessageMgr();

    /// Logs the warning, then tells the observers. Never throws and never ends the process.
    ///
    /// A place (file and line) writes at most ten lines; the rest are counted and told in one
    /// closing line when the log is closed.
    void ShowDebugWarn(const std::string& file, int line, const std::string& function,
                       const std::wstring& message, const std::wstring& person,
                       const std::wstring& date);

    /// Logs to `path` (UTF-8) from now on, appending; closes the log before. False when the file
    /// cannot be opened: the log then goes to standard error, as it does before the first call.
    bool OpenLog(const std::string& path);

    /// Writes the closing lines of suppressed places and closes the file.
    void CloseLog();

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
