#include "Foundation/Event.h"

#include "Host/AllocationCounter.h"
#include "Support/TestValues.h"

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace vesk
{

namespace
{

struct Args
{
    int value = 0;
};

class IHandler
{
public:
    virtual ~IHandler() = default;
    virtual void On(Args* pArgs) = 0;
};

class IEvent
{
public:
    virtual ~IEvent() = default;
    virtual void Add(IHandler* pHandler) = 0;
    virtual void Delete(IHandler* pHandler) = 0;
};

class Sender;
using TestEvent = Event<Sender, IEvent, IHandler, Args>;

/// Adds its name to the shared record; a function passed to Then runs once, after the next call.
class Handler final : public IHandler
{
public:
    Handler(std::string& record, char name) : m_record(record), m_name(name) {}

    void On(Args* pArgs) override
    {
        m_record += m_name;
        m_pLastArgs = pArgs;
        if (m_then)
            std::exchange(m_then, nullptr)();
    }

    void Then(std::function<void()> action) { m_then = std::move(action); }
    const Args* GetLastArgs() const { return m_pLastArgs; }

private:
    std::string& m_record;
    char m_name;
    std::function<void()> m_then;
    Args* m_pLastArgs = nullptr;
};

/// Three handlers a, b and c on one event.
struct EventFixture
{
    EventFixture()
    {
        pEvent->Add(&a);
        pEvent->Add(&b);
        pEvent->Add(&c);
    }

    void Emit() { pEvent->Emit(&args); }

    Args args;
    std::string record;
    std::unique_ptr<TestEvent> pEvent = std::make_unique<TestEvent>();
    Handler a{record, 'a'};
    Handler b{record, 'b'};
    Handler c{record, 'c'};
    Handler d{record, 'd'};
};

using Fixture = EventFixture;

/// Counts its calls without allocating.
class CountingHandler final : public IHandler
{
public:
    void On(Args* /*pArgs*/) override { ++m_count; }
    int GetCount() const { return m_count; }

private:
    int m_count = 0;
};

}

}

using Act = void (*)(vesk::EventFixture&);
Q_DECLARE_METATYPE(Act)

namespace vesk
{

class EventTest : public QObject
{
    Q_OBJECT

private slots:
    void callsEachHandlerInOrderOfSubscription();
    void handsTheArgumentsOn();
    void ignoresNullAndSecondSubscriptions();
    void deletingAnUnknownHandlerChangesNothing();
    void aDeletedHandlerHearsNothingMore();
    void isEmptyTellsWhetherAnybodyListens();
    void isEmptyDoesNotCountWhoLeftDuringTheEmission();
    void aHandlerMayUnsubscribeItself();
    void aHandlerUnsubscribedBeforeItsTurnIsNotCalled();
    void aHandlerUnsubscribedAfterItsTurnDoesNotShiftTheOthers();
    void aHandlerAddedWhileEmittingFirstHearsTheNextEmission();
    void manyHandlersMayBeAddedWhileEmitting();
    void aHandlerSubscribedAgainWhileEmittingIsNotCalledTwice();
    void aHandlerMayEmitAgain();
    void unsubscribingInANestedEmissionHoldsForTheOuterOne();
    void unsubscribingAnEarlierOneInANestedEmissionShiftsNothing();
    void aHandlerAddedWhileEmittingHearsANestedEmission();
    void destroyingTheEventEndsTheEmission();
    void destroyingTheEventInANestedEmissionEndsBoth();
    void anEventOutlivesAHandlerDestroyedInItsOwnCall();
    void aHandlerThatThrowsKeepsTheOthersFromNothing();
    void theEventIsUsableAfterAnException_data();
    void theEventIsUsableAfterAnException();
    void anExceptionInANestedEmissionLeavesBoth();
    void emittingAllocatesNothing();
    void emittingFromAHandlerThatUnsubscribesAllocatesNothing();
};

void EventTest::callsEachHandlerInOrderOfSubscription()
{
    Fixture f;

    f.Emit();

    QCOMPARE(f.record, std::string("abc"));
}

void EventTest::handsTheArgumentsOn()
{
    Fixture f;

    f.Emit();

    QCOMPARE(f.c.GetLastArgs(), &f.args);
}

void EventTest::ignoresNullAndSecondSubscriptions()
{
    Fixture f;

    f.pEvent->Add(nullptr);
    f.pEvent->Add(&f.a);
    f.Emit();

    QCOMPARE(f.record, std::string("abc"));
}

void EventTest::deletingAnUnknownHandlerChangesNothing()
{
    Fixture f;

    f.pEvent->Delete(&f.d);
    f.pEvent->Delete(nullptr);
    f.Emit();

    QCOMPARE(f.record, std::string("abc"));
}

void EventTest::aDeletedHandlerHearsNothingMore()
{
    Fixture f;

    f.pEvent->Delete(&f.b);
    f.Emit();

    QCOMPARE(f.record, std::string("ac"));
}

void EventTest::isEmptyTellsWhetherAnybodyListens()
{
    TestEvent event;
    CountingHandler handler;

    QVERIFY(event.IsEmpty());
    event.Add(&handler);
    QVERIFY(!event.IsEmpty());
    event.Delete(&handler);

    QVERIFY(event.IsEmpty());
}

void EventTest::isEmptyDoesNotCountWhoLeftDuringTheEmission()
{
    Fixture f;
    bool isEmptyInside = false;
    f.c.Then([&] {
        f.pEvent->Delete(&f.a);
        f.pEvent->Delete(&f.b);
        f.pEvent->Delete(&f.c);
        isEmptyInside = f.pEvent->IsEmpty();
    });

    f.Emit();

    QVERIFY(isEmptyInside);
}

void EventTest::aHandlerMayUnsubscribeItself()
{
    Fixture f;
    f.b.Then([&] { f.pEvent->Delete(&f.b); });

    f.Emit();
    f.Emit();

    QCOMPARE(f.record, std::string("abcac"));
}

void EventTest::aHandlerUnsubscribedBeforeItsTurnIsNotCalled()
{
    Fixture f;
    f.a.Then([&] { f.pEvent->Delete(&f.b); });

    f.Emit();
    f.Emit();

    QCOMPARE(f.record, std::string("acac"));
}

void EventTest::aHandlerUnsubscribedAfterItsTurnDoesNotShiftTheOthers()
{
    Fixture f;
    f.b.Then([&] { f.pEvent->Delete(&f.a); });

    f.Emit();
    f.Emit();

    QCOMPARE(f.record, std::string("abcbc"));
}

void EventTest::aHandlerAddedWhileEmittingFirstHearsTheNextEmission()
{
    Fixture f;
    f.a.Then([&] { f.pEvent->Add(&f.d); });

    f.Emit();
    QCOMPARE(f.record, std::string("abc"));
    f.Emit();

    QCOMPARE(f.record, std::string("abcabcd"));
}

void EventTest::manyHandlersMayBeAddedWhileEmitting()
{
    Fixture f;
    std::vector<CountingHandler> added(1000);
    f.a.Then([&] {
        for (CountingHandler& handler : added)
            f.pEvent->Add(&handler);
    });

    f.Emit();
    f.Emit();

    QCOMPARE(f.record, std::string("abcabc"));
    QCOMPARE(added.back().GetCount(), 1);
}

void EventTest::aHandlerSubscribedAgainWhileEmittingIsNotCalledTwice()
{
    Fixture f;
    f.a.Then([&] {
        f.pEvent->Delete(&f.a);
        f.pEvent->Add(&f.a);
    });

    f.Emit();
    f.Emit();

    QCOMPARE(f.record, std::string("abcbca"));
}

void EventTest::aHandlerMayEmitAgain()
{
    Fixture f;
    f.b.Then([&] { f.Emit(); });

    f.Emit();

    QCOMPARE(f.record, std::string("ababcc"));
}

void EventTest::unsubscribingInANestedEmissionHoldsForTheOuterOne()
{
    Fixture f;
    f.a.Then([&] {
        f.b.Then([&] { f.pEvent->Delete(&f.c); });
        f.Emit();
    });

    f.Emit();
    f.Emit();

    QCOMPARE(f.record, std::string("aabbab"));
}

void EventTest::unsubscribingAnEarlierOneInANestedEmissionShiftsNothing()
{
    Fixture f;
    f.pEvent->Add(&f.d);
    f.b.Then([&] {
        f.pEvent->Delete(&f.a);
        f.Emit();
    });

    f.Emit();

    QCOMPARE(f.record, std::string("abbcdcd"));
}

void EventTest::aHandlerAddedWhileEmittingHearsANestedEmission()
{
    Fixture f;
    f.c.Then([&] {
        f.pEvent->Add(&f.d);
        f.Emit();
    });

    f.Emit();

    QCOMPARE(f.record, std::string("abcabcd"));
}

void EventTest::destroyingTheEventEndsTheEmission()
{
    Fixture f;
    f.b.Then([&] { f.pEvent.reset(); });

    f.Emit();

    QCOMPARE(f.record, std::string("ab"));
}

void EventTest::destroyingTheEventInANestedEmissionEndsBoth()
{
    Fixture f;
    f.a.Then([&] {
        f.b.Then([&] { f.pEvent.reset(); });
        f.Emit();
    });

    f.Emit();

    QCOMPARE(f.record, std::string("aab"));
}

void EventTest::anEventOutlivesAHandlerDestroyedInItsOwnCall()
{
    Fixture f;
    auto pOwned = std::make_unique<Handler>(f.record, 'x');
    f.pEvent->Add(pOwned.get());
    f.c.Then([&] {
        f.pEvent->Delete(pOwned.get());
        pOwned.reset();
    });

    f.Emit();
    f.Emit();

    QCOMPARE(f.record, std::string("abcabc"));
}

void EventTest::aHandlerThatThrowsKeepsTheOthersFromNothing()
{
    Fixture f;
    f.a.Then([] { throw std::runtime_error("a"); });
    f.b.Then([] { throw std::logic_error("b"); });

    // The first of the exceptions.
    QVERIFY_EXCEPTION_THROWN(f.Emit(), std::runtime_error);

    QCOMPARE(f.record, std::string("abc"));
}

void EventTest::theEventIsUsableAfterAnException_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QByteArray>("record");
    QTest::newRow("emitting") << Act{[](Fixture& f) { f.Emit(); }} << QByteArray("abc");
    QTest::newRow("subscribing") << Act{[](Fixture& f) {
        f.pEvent->Add(&f.d);
        f.Emit();
    }} << QByteArray("abcd");
    QTest::newRow("unsubscribing") << Act{[](Fixture& f) {
        f.pEvent->Delete(&f.b);
        f.Emit();
    }} << QByteArray("ac");
    QTest::newRow("destroying") << Act{[](Fixture& f) { f.pEvent.reset(); }} << QByteArray();
}

void EventTest::theEventIsUsableAfterAnException()
{
    QFETCH(Act, act);
    QFETCH(QByteArray, record);
    Fixture f;
    f.a.Then([] { throw std::runtime_error("a"); });
    QVERIFY_EXCEPTION_THROWN(f.Emit(), std::runtime_error);
    f.record.clear();

    act(f);

    QCOMPARE(f.record, record.toStdString());
}

void EventTest::anExceptionInANestedEmissionLeavesBoth()
{
    Fixture f;
    f.a.Then([&] {
        f.b.Then([] { throw std::runtime_error("b"); });
        f.Emit();
    });

    QVERIFY_EXCEPTION_THROWN(f.Emit(), std::runtime_error);
    f.Emit();

    QCOMPARE(f.record, std::string("aabcbcabc"));
}

void EventTest::emittingAllocatesNothing()
{
    TestEvent event;
    CountingHandler first;
    CountingHandler second;
    event.Add(&first);
    event.Add(&second);
    Args args;

    const std::size_t before = AllocationCounter::s_count;
    event.Emit(&args);
    const std::size_t after = AllocationCounter::s_count;

    QCOMPARE(after - before, std::size_t{0});
    QCOMPARE(second.GetCount(), 1);
}

void EventTest::emittingFromAHandlerThatUnsubscribesAllocatesNothing()
{
    class Leaver final : public IHandler
    {
    public:
        explicit Leaver(TestEvent& event) : m_event(event) {}
        void On(Args* pArgs) override
        {
            m_event.Delete(this);
            m_event.Emit(pArgs);
        }

    private:
        TestEvent& m_event;
    };
    TestEvent event;
    Leaver leaver(event);
    CountingHandler other;
    event.Add(&leaver);
    event.Add(&other);
    Args args;

    const std::size_t before = AllocationCounter::s_count;
    event.Emit(&args);
    const std::size_t after = AllocationCounter::s_count;

    QCOMPARE(after - before, std::size_t{0});
    QCOMPARE(other.GetCount(), 2);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::EventTest);
#include "EventTest.moc"
