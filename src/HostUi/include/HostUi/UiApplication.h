#pragma once

#include "Command/ActionManager.h"
#include "Foundation/IApplication.h"
#include "HostUi/HostUiExport.h"
#include "View/IUiManager.h"
#include "Warnings/IDebugWarningScheduler.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <vector>

class QEventLoop;

namespace vesk
{

class ClosedPopupKeys;

/// The application on Qt: posted events, the event loop of actions, the user-interface services.
///
/// Made after QApplication; installed while it lives. Keys that the window system delivers to a
/// list or menu after it has closed go to what has the focus.
class VESK_HOST_UI_API UiApplication final : public QObject,
                                             public IApplication,
                                             public IUiManager,
                                             public IActionEventLoop,
                                             public IDebugWarningScheduler
{
    Q_OBJECT

public:
    UiApplication();
    ~UiApplication() override;

    void PostEvent(OwnerPtr<IApplicationEvent> opEvent) override;
    IApplicationWindow* GetMainWindow() const override;
    IDockManager* GetDockManager() const override;

    /// Runs a nested Qt event loop; never more than one at a time.
    void Run() override;
    void Quit() override;

    bool IsDialogAllowed() const override;
    void Post(std::function<void()> function) override;
    void PostWhenIdle(std::chrono::milliseconds delay, std::function<void()> function) override;

    /// Frees the posted events that still wait, unemitted: before the library that posted them
    /// goes.
    static void DiscardPostedEvents();

    /// The window that the services name as the application's (not owned); null for none.
    void SetMainWindow(IApplicationWindow* pMainWindow);

    /// The panes that the services name as the main window's (not owned); null for none.
    void SetDockManager(IDockManager* pDockManager);

protected:
    void customEvent(QEvent* pEvent) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    IApplicationWindow* m_pMainWindow = nullptr;
    IDockManager* m_pDockManager = nullptr;
    QEventLoop* m_pActionLoop = nullptr;
    std::unique_ptr<ClosedPopupKeys> m_pPopupKeys;

    /// The widgets that were asked to paint and may still be at it.
    std::vector<QPointer<QWidget>> m_painted;
};

}
