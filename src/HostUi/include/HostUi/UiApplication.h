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

class AccessibleObjects;
class ClosedPopupKeys;

/// The application on Qt: posted events, the event loop of actions, the user-interface services.
///
/// Created after QApplication; installed while it lives. Keys that the window system delivers to a
/// list or menu after it has closed are passed on to the focus window.
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

    /// Frees pending posted events without emitting them; must precede unloading the library that
    /// posted them.
    static void DiscardPostedEvents();

    /// Sets the window that GetMainWindow returns (not owned); null for none.
    void SetMainWindow(IApplicationWindow* pMainWindow);

    /// Sets the manager that GetDockManager returns (not owned); null for none.
    void SetDockManager(IDockManager* pDockManager);

protected:
    void customEvent(QEvent* pEvent) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    IApplicationWindow* m_pMainWindow = nullptr;
    IDockManager* m_pDockManager = nullptr;
    QEventLoop* m_pActionLoop = nullptr;
    std::unique_ptr<ClosedPopupKeys> m_pPopupKeys;
    std::unique_ptr<AccessibleObjects> m_pAccessibleObjects;

    /// Widgets that received a paint event and may still be painting.
    std::vector<QPointer<QWidget>> m_painted;
};

}
