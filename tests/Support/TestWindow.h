#pragma once

#include "View/IUiManager.h"

#include <QWidget>

namespace vesk::test
{

/// A main window and the services that name it. Installed while it lives.
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

    /// Names another window as the application's, or none.
    void SetNamedWindow(IApplicationWindow* pWindow) { m_pNamedWindow = pWindow; }

    /// Names the panes of the window, or none.
    void SetDockManager(IDockManager* pDockManager) { m_pDockManager = pDockManager; }

    /// Answers another window id than the widget's.
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
