#pragma once

#include "Foundation/HostExport.h"
#include "View/WindowId.h"

namespace vesk
{

class IDockManager;

/// The application's window as the user-interface services see it.
class VESK_HOST_API IApplicationWindow
{
public:
    virtual ~IApplicationWindow() = default;

    /// The native window of the window's widget.
    virtual WindowId GetWindowId() const = 0;
};

/// The user-interface services.
class VESK_HOST_API IUiManager
{
public:
    /// The installed manager, null if there is none. Not owned.
    static IUiManager* Get();

    virtual ~IUiManager() = default;

    /// The main window, null if there is none. Not owned.
    virtual IApplicationWindow* GetMainWindow() const = 0;

    /// The dock manager of the main window, null if there is none. Not owned.
    virtual IDockManager* GetDockManager() const = 0;

protected:
    /// Installs the manager; null removes it. Not owned.
    static void Set(IUiManager* pManager);
};

/// The main frame.
class VESK_HOST_API IMainWindow
{
public:
    /// The installed main frame, null if there is none. Not owned.
    static IMainWindow* GetMainWindow();

    virtual ~IMainWindow() = default;

    /// The native window of the frame's widget.
    virtual WindowId GetWinId() const = 0;

protected:
    /// Installs the frame; null removes it. Not owned.
    static void SetMainWindow(IMainWindow* pMainWindow);
};

}
