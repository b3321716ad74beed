#include "HostUi/UiApplication.h"

#include "Accessibility/AccessibleObjects.h"
#include "Application/ClosedPopupKeys.h"
#include "Warnings/DebugMessageMgr.h"

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QScopedValueRollback>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace vesk
{
namespace
{

const QEvent::Type s_hostEventType = static_cast<QEvent::Type>(QEvent::registerEventType());

/// Carries a host event through Qt's queue; freed by Qt, delivered or not.
class QtHostEvent final : public QEvent
{
public:
    explicit QtHostEvent(OwnerPtr<IApplicationEvent> opEvent)
        : QEvent(s_hostEventType), m_opEvent(std::move(opEvent))
    {}

    void Emit() { m_opEvent->Emit(); }

private:
    OwnerPtr<IApplicationEvent> m_opEvent;
};

/// Calls a function from the event loop.
class FunctionEvent final : public IApplicationEvent
{
public:
    explicit FunctionEvent(std::function<void()> function) : m_function(std::move(function)) {}

    void Emit() override { m_function(); }

private:
    std::function<void()> m_function;
};

bool IsPainting(const QPointer<QWidget>& pWidget)
{
    return pWidget != nullptr && pWidget->testAttribute(Qt::WA_WState_InPaintEvent);
}

}

UiApplication::UiApplication()
    : m_pPopupKeys(std::make_unique<ClosedPopupKeys>()),
      m_pAccessibleObjects(std::make_unique<AccessibleObjects>())
{
    IApplication::Set(this);
    IUiManager::Set(this);
    ActionManager::SetEventLoop(this);
    DebugMessageMgr::GetDebugMessageMgr()->SetScheduler(this);
    qApp->installEventFilter(this);
}

UiApplication::~UiApplication()
{
    DebugMessageMgr::GetDebugMessageMgr()->SetScheduler(nullptr);
    ActionManager::SetEventLoop(nullptr);
    IUiManager::Set(nullptr);
    IApplication::Set(nullptr);
}

void UiApplication::PostEvent(OwnerPtr<IApplicationEvent> opEvent)
{
    if (opEvent != nullptr)
        QCoreApplication::postEvent(this, new QtHostEvent(std::move(opEvent)));
}

IApplicationWindow* UiApplication::GetMainWindow() const
{
    return m_pMainWindow;
}

IDockManager* UiApplication::GetDockManager() const
{
    return m_pDockManager;
}

void UiApplication::Run()
{
    QEventLoop loop;
    const QScopedValueRollback<QEventLoop*> running(m_pActionLoop, &loop);
    loop.exec();
}

void UiApplication::Quit()
{
    if (m_pActionLoop != nullptr)
        m_pActionLoop->quit();
}

bool UiApplication::IsDialogAllowed() const
{
    return QThread::currentThread() == thread() &&
           std::none_of(m_painted.begin(), m_painted.end(), &IsPainting);
}

void UiApplication::Post(std::function<void()> function)
{
    PostEvent(MakeOwner<FunctionEvent>(std::move(function)));
}

void UiApplication::PostWhenIdle(std::chrono::milliseconds delay, std::function<void()> function)
{
    QTimer::singleShot(delay, this, [this, function = std::move(function)] {
        // A zero timer fires when nothing else is pending.
        QTimer::singleShot(0, this, function);
    });
}

void UiApplication::DiscardPostedEvents()
{
    QCoreApplication::removePostedEvents(nullptr, s_hostEventType);
}

void UiApplication::SetMainWindow(IApplicationWindow* pMainWindow)
{
    m_pMainWindow = pMainWindow;
}

void UiApplication::SetDockManager(IDockManager* pDockManager)
{
    m_pDockManager = pDockManager;
}

bool UiApplication::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::Paint && pWatched->isWidgetType())
    {
        const auto done = std::remove_if(m_painted.begin(), m_painted.end(),
                                         [](const auto& pWidget) { return !IsPainting(pWidget); });
        m_painted.erase(done, m_painted.end());
        m_painted.emplace_back(static_cast<QWidget*>(pWatched));
    }
    return QObject::eventFilter(pWatched, pEvent);
}

void UiApplication::customEvent(QEvent* pEvent)
{
    if (pEvent->type() == s_hostEventType)
        static_cast<QtHostEvent*>(pEvent)->Emit();
}

}
