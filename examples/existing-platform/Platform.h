#pragma once

#include <Command/ActionManager.h>
#include <Foundation/IApplication.h>
#include <Foundation/UpdateCtrlStatusEvent.h>
#include <View/IUiManager.h>

#include <QObject>

#include <functional>
#include <vector>

class QEventLoop;
class QMainWindow;

/// The program's window, as the library sees it. Installed while it lives.
class PlatformWindow final : public vesk::IApplicationWindow, public vesk::IMainWindow
{
public:
    /// The window is not owned and outlives this.
    explicit PlatformWindow(QMainWindow& window);
    ~PlatformWindow() override;

    vesk::WindowId GetWindowId() const override;
    vesk::WindowId GetWinId() const override;

private:
    QMainWindow& m_window;
};

/// What else the library asks of a program: an event loop for actions, and somebody who does things
/// later. Installed while it lives.
class Platform final : public QObject,
                       public vesk::IApplication,
                       public vesk::IUiManager,
                       public vesk::IActionEventLoop,
                       public vesk::IControlStatusRefresher
{
public:
    /// The window is not owned and outlives this.
    explicit Platform(PlatformWindow& window);
    ~Platform() override;

    /// Adds something that RefreshControls does.
    void AddRefresh(std::function<void()> refresh) { m_refreshes.push_back(std::move(refresh)); }

    void PostEvent(vesk::OwnerPtr<vesk::IApplicationEvent> opEvent) override;
    vesk::IApplicationWindow* GetMainWindow() const override { return &m_window; }
    vesk::IDockManager* GetDockManager() const override { return nullptr; }
    void Run() override;
    void Quit() override;
    void RefreshControls() override;

private:
    PlatformWindow& m_window;
    QEventLoop* m_pLoop = nullptr;
    std::vector<std::function<void()>> m_refreshes;
};
