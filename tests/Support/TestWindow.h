#pragma once

#include "View/IUiManager.h"

#include <QWidget>

namespace vesk::test
{

/// A main window and the services that refer to it. Installed during its lifetime.
class TestWindow final : public QWidget,
                         public IApplicationWindow,
                         public IMainWindow,
                         public IUiManager
{
public:
    TestWindow();
    ~TestWindow() override;

    WindowId GetWindowId() const override { return m_windowId; }
    WindowId GetWinId() const override { return m_windowId; }
    IApplicationWindow* GetMainWindow() const override { return m_pNamedWindow; }
    IDockManager* GetDockManager() const override { return m_pDockManager; }

    /// Makes the services return another window as that of the application, or none.
    void SetNamedWindow(IApplicationWindow* pWindow) { m_pNamedWindow = pWindow; }

    /// Sets the manager of the panes of the window, or none.
    void SetDockManager(IDockManager* pDockManager) { m_pDockManager = pDockManager; }

    /// Returns a window id other than that of the widget.
    void SetWindowId(WindowId windowId) { m_windowId = windowId; }

    /// Removes the services, or installs them again.
    void SetManagerInstalled(bool isInstalled);

private:
    IUiManager* m_pPreviousManager;
    IMainWindow* m_pPreviousWindow;
    IApplicationWindow* m_pNamedWindow;
    IDockManager* m_pDockManager = nullptr;
    WindowId m_windowId;
};

}
