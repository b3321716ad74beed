#include "Platform.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QMainWindow>

#include <memory>
#include <utility>

using namespace vesk;

PlatformWindow::PlatformWindow(QMainWindow& window) : m_window(window)
{
    IMainWindow::SetMainWindow(this);
}

PlatformWindow::~PlatformWindow()
{
    IMainWindow::SetMainWindow(nullptr);
}

WindowId PlatformWindow::GetWindowId() const
{
    return m_window.winId();
}

WindowId PlatformWindow::GetWinId() const
{
    return m_window.winId();
}

Platform::Platform(PlatformWindow& window) : m_window(window)
{
    IApplication::Set(this);
    IUiManager::Set(this);
    IControlStatusRefresher::Set(this);
    ActionManager::SetEventLoop(this);
}

Platform::~Platform()
{
    // The events are code of the library, which is unloaded next.
    QCoreApplication::removePostedEvents(this, QEvent::MetaCall);
    ActionManager::SetEventLoop(nullptr);
    IControlStatusRefresher::Set(nullptr);
    IUiManager::Set(nullptr);
    IApplication::Set(nullptr);
}

void Platform::PostEvent(OwnerPtr<IApplicationEvent> opEvent)
{
    const auto pEvent = std::make_shared<OwnerPtr<IApplicationEvent>>(std::move(opEvent));
    QMetaObject::invokeMethod(
        this, [pEvent] { (*pEvent)->Emit(); }, Qt::QueuedConnection);
}

/// Handles events until the action ends: it runs inside the click that started it.
void Platform::Run()
{
    QEventLoop loop;
    m_pLoop = &loop;
    loop.exec();
    m_pLoop = nullptr;
}

void Platform::Quit()
{
    if (m_pLoop != nullptr)
        m_pLoop->quit();
}

void Platform::RefreshControls()
{
    for (const std::function<void()>& refresh : m_refreshes)
        refresh();
}
