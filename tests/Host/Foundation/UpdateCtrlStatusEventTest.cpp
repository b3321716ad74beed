#include "Foundation/UpdateCtrlStatusEvent.h"

#include "Support/TestValues.h"

#include <functional>
#include <memory>
#include <utility>

namespace vesk
{

namespace
{

/// Installed while it exists.
class Refresher final : public IControlStatusRefresher
{
public:
    Refresher() { Set(this); }
    ~Refresher() override { Set(nullptr); }

    void RefreshControls() override
    {
        ++m_count;
        if (m_then)
            std::exchange(m_then, nullptr)();
    }

    void Then(std::function<void()> action) { m_then = std::move(action); }
    int GetCount() const { return m_count; }

private:
    int m_count = 0;
    std::function<void()> m_then;
};

}

class UpdateCtrlStatusEventTest : public QObject
{
    Q_OBJECT

private slots:
    void oneEventRefreshesOnce();
    void eventsThatWaitTogetherRefreshOnceWithTheLast();
    void anEmittedEventThatStillLivesIsNotWaitedFor();
    void eventsOneAfterAnotherRefreshEach();
    void anEventFreedUnemittedIsNotWaitedFor();
    void anEventMadeWhileRefreshingRefreshesAgain();
    void anEventEmittedWhileRefreshingIsNotLost();
    void withoutListenerNothingHappens();
    void aRemovedListenerHearsNothing();
};

void UpdateCtrlStatusEventTest::oneEventRefreshesOnce()
{
    Refresher refresher;
    UpdateCtrlStatusEvent event;
    QCOMPARE(refresher.GetCount(), 0);

    event.Emit();

    QCOMPARE(refresher.GetCount(), 1);
}

void UpdateCtrlStatusEventTest::eventsThatWaitTogetherRefreshOnceWithTheLast()
{
    Refresher refresher;
    auto pFirst = std::make_unique<UpdateCtrlStatusEvent>();
    auto pSecond = std::make_unique<UpdateCtrlStatusEvent>();
    auto pThird = std::make_unique<UpdateCtrlStatusEvent>();

    pFirst->Emit();
    pFirst.reset();
    pSecond->Emit();
    pSecond.reset();
    QCOMPARE(refresher.GetCount(), 0);
    pThird->Emit();
    pThird.reset();

    QCOMPARE(refresher.GetCount(), 1);
}

void UpdateCtrlStatusEventTest::anEmittedEventThatStillLivesIsNotWaitedFor()
{
    Refresher refresher;
    UpdateCtrlStatusEvent first;
    UpdateCtrlStatusEvent second;

    first.Emit();
    second.Emit();

    QCOMPARE(refresher.GetCount(), 1);
}

void UpdateCtrlStatusEventTest::eventsOneAfterAnotherRefreshEach()
{
    Refresher refresher;

    UpdateCtrlStatusEvent().Emit();
    UpdateCtrlStatusEvent().Emit();

    QCOMPARE(refresher.GetCount(), 2);
}

void UpdateCtrlStatusEventTest::anEventFreedUnemittedIsNotWaitedFor()
{
    Refresher refresher;
    auto pUnemitted = std::make_unique<UpdateCtrlStatusEvent>();
    UpdateCtrlStatusEvent event;

    pUnemitted.reset();
    event.Emit();

    QCOMPARE(refresher.GetCount(), 1);
}

void UpdateCtrlStatusEventTest::anEventMadeWhileRefreshingRefreshesAgain()
{
    Refresher refresher;
    std::unique_ptr<UpdateCtrlStatusEvent> pNext;
    refresher.Then([&] { pNext = std::make_unique<UpdateCtrlStatusEvent>(); });

    UpdateCtrlStatusEvent().Emit();
    QCOMPARE(refresher.GetCount(), 1);
    pNext->Emit();

    QCOMPARE(refresher.GetCount(), 2);
}

void UpdateCtrlStatusEventTest::anEventEmittedWhileRefreshingIsNotLost()
{
    Refresher refresher;
    refresher.Then([] { UpdateCtrlStatusEvent().Emit(); });

    UpdateCtrlStatusEvent().Emit();

    QCOMPARE(refresher.GetCount(), 2);
}

void UpdateCtrlStatusEventTest::withoutListenerNothingHappens()
{
    UpdateCtrlStatusEvent().Emit();

    const Refresher refresher;
    QCOMPARE(refresher.GetCount(), 0);
}

void UpdateCtrlStatusEventTest::aRemovedListenerHearsNothing()
{
    Refresher refresher;
    IControlStatusRefresher::Set(nullptr);

    UpdateCtrlStatusEvent().Emit();

    QCOMPARE(refresher.GetCount(), 0);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::UpdateCtrlStatusEventTest);
#include "UpdateCtrlStatusEventTest.moc"
