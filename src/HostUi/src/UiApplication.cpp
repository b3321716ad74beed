#include "HostUi/UiApplication.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>

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

}

UiApplication::UiApplication()
{
    IApplication::Set(this);
    IUiManager::Set(this);
    ActionManager::SetEventLoop(this);
}

UiApplication::~UiApplication()
{
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
    m_pActionLoop = &loop;
    loop.exec();
    m_pActionLoop = nullptr;
}

void UiApplication::Quit()
{
    if (m_pActionLoop != nullptr)
        m_pActionLoop->quit();
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

void UiApplication::customEvent(QEvent* pEvent)
{
    if (pEvent->type() == s_hostEventType)
        static_cast<QtHostEvent*>(pEvent)->Emit();
}

}
