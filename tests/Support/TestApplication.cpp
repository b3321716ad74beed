#include "Support/TestApplication.h"

#include "Foundation/UpdateCtrlStatusEvent.h"

#include <QCoreApplication>
#include <QEvent>

namespace vesk::test
{
namespace
{

class PostedEvent final : public QEvent
{
public:
    explicit PostedEvent(OwnerPtr<IApplicationEvent> opEvent)
        : QEvent(User), m_opEvent(std::move(opEvent))
    {}

    void Emit() { m_opEvent->Emit(); }

private:
    OwnerPtr<IApplicationEvent> m_opEvent;
};

}

void TestApplication::PostEvent(OwnerPtr<IApplicationEvent> opEvent)
{
    if (dynamic_cast<UpdateCtrlStatusEvent*>(opEvent.Get()) != nullptr)
        ++m_statusUpdateCount;
    QCoreApplication::postEvent(this, new PostedEvent(std::move(opEvent)));
}

void TestApplication::customEvent(QEvent* pEvent)
{
    static_cast<PostedEvent*>(pEvent)->Emit();
}

}
